// CSubject: one subject of the model (joints, sections, loads...) and the
// step and parser entries that name a subject and its member.
#pragma once

#include <atomic>
#include <cstddef>
#include <string>
#include <type_traits>

class CS2kConverter;

/// Owns its tables' parsers, its conversions, its writers, its name indexes
/// and its run flags. The engine makes one of each on first use in a run and
/// drops them all when the next run starts, so no run sees another's state.
/// What a subject needs of another it asks through that subject's public face:
/// engine.Get<CGeometry>().NodeNumberOf(name).
class CSubject {
 public:
  explicit CSubject(CS2kConverter& engine) : engine(engine) {}
  virtual ~CSubject() = default;
  CSubject(const CSubject&) = delete;
  CSubject& operator=(const CSubject&) = delete;

 protected:
  CS2kConverter& engine;
};

namespace subject_detail {
inline std::size_t NextSubjectId() {
  static std::atomic<std::size_t> next{0};
  return next++;
}
template <class Member>
struct MemberOf;
template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...)> {
  using Class = C;
};
}  // namespace subject_detail

/// A small number per subject type, the slot of its object in the engine.
template <class T>
std::size_t SubjectId() {
  static const std::size_t id = subject_detail::NextSubjectId();
  return id;
}

/// A step, a parser or a per-case writer: the engine and, for the last, a
/// load case name. Made from a subject's member by RunStep.
using StepFunction = int (*)(CS2kConverter&);
using CaseStepFunction = int (*)(CS2kConverter&, const std::string&);

/// Calls \p Member, with \p Values if it takes any, on the engine's subject
/// of its class: RunStep<&CSprings::ConvertLineSprings, 1>.
template <auto Member, auto... Values>
int RunStep(CS2kConverter& engine);

/// Calls the per-case writer \p Member with the load case's name.
template <auto Member>
int RunCaseStep(CS2kConverter& engine, const std::string& loadCase);

/// A table id and the subject member that parses its rows.
struct S2kTableParser {
  int tableId;
  StepFunction parse;
};
