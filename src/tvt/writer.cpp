// The TVT file: its header, the writer steps in their order, its end mark.
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "frame/converter.h"
#include "frame/steps.h"
#include "s2k/keys.h"

namespace {

// Gathers a line in a small buffer and hands it to the file in one write.
class LineBuffer {
 public:
  explicit LineBuffer(TvtOutputFile& file) : file_(file) {}
  void Put(std::string_view text) {
    if (used_ + text.size() > sizeof buffer_) {
      Flush();
      if (text.size() > sizeof buffer_) {
        file_.Write(text);
        return;
      }
    }
    std::memcpy(buffer_ + used_, text.data(), text.size());
    used_ += text.size();
  }
  void PutPadded(std::string_view text, int width) {
    static constexpr char kBlanks[] = "                                ";
    for (int pad = width - static_cast<int>(text.size()); pad > 0; pad -= 32)
      Put(std::string_view(kBlanks, static_cast<std::size_t>(pad < 32 ? pad : 32)));
    Put(text);
  }
  void Flush() {
    if (used_) file_.Write(std::string_view(buffer_, used_));
    used_ = 0;
  }

 private:
  TvtOutputFile& file_;
  char buffer_[512];
  std::size_t used_ = 0;
};

// The formats the writers use, %d %g %s with a width and no flags, written
// straight to the file; \returns false, having written nothing, for any
// other format or a number printf spells out (inf, nan).
bool WriteSimple(TvtOutputFile& file, const char* format, va_list args) {
  constexpr int kMaxPieces = 40;
  struct Piece {
    char kind;  // 0 for plain text
    int width;
    const char* text;
    std::size_t size;
  };
  Piece pieces[kMaxPieces];
  int count = 0;
  for (const char* at = format; *at;) {
    if (count == kMaxPieces) return false;
    if (*at != '%') {
      const char* end = at;
      while (*end && *end != '%') ++end;
      pieces[count++] = {0, 0, at, static_cast<std::size_t>(end - at)};
      at = end;
      continue;
    }
    ++at;
    int width = 0;
    while (*at >= '0' && *at <= '9') {
      if (width == 0 && *at == '0') return false;  // a flag
      width = width * 10 + (*at++ - '0');
      if (width > 64) return false;
    }
    if (*at != 'd' && *at != 'g' && *at != 's') return false;
    pieces[count++] = {*at++, width, nullptr, 0};
  }
  // Values are taken only now, once the whole format is known to be simple.
  struct Value {
    char digits[32];
    std::size_t size;
    const char* text;
  };
  Value values[kMaxPieces];
  for (int i = 0; i < count; ++i) {
    Value& value = values[i];
    switch (pieces[i].kind) {
      case 'd': {
        auto result = std::to_chars(value.digits, value.digits + sizeof value.digits, va_arg(args, int));
        value.size = static_cast<std::size_t>(result.ptr - value.digits);
        value.text = value.digits;
        break;
      }
      case 'g': {
        double number = va_arg(args, double);
        if (!std::isfinite(number)) return false;
#if defined(__cpp_lib_to_chars)
        auto result = std::to_chars(value.digits, value.digits + sizeof value.digits, number,
                                    std::chars_format::general, 6);
        value.size = static_cast<std::size_t>(result.ptr - value.digits);
#else
        // A standard library without to_chars for doubles: the same digits.
        value.size = static_cast<std::size_t>(std::snprintf(value.digits, sizeof value.digits, "%g", number));
#endif
        value.text = value.digits;
        break;
      }
      case 's': {
        const char* text = va_arg(args, const char*);
        value.text = text ? text : "(null)";
        value.size = std::strlen(value.text);
        break;
      }
      default:
        break;
    }
  }
  LineBuffer line(file);
  for (int i = 0; i < count; ++i) {
    if (pieces[i].kind == 0)
      line.Put(std::string_view(pieces[i].text, pieces[i].size));
    else
      line.PutPadded(std::string_view(values[i].text, values[i].size), pieces[i].width);
  }
  line.Flush();
  return true;
}

}  // namespace

int CS2kConverter::WriteText(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list simple;
  va_copy(simple, args);
  bool done = WriteSimple(outputFile, format, simple);
  va_end(simple);
  if (done) {
    va_end(args);
    return 1;
  }
  char small[512];
  va_list again;
  va_copy(again, args);
  int size = std::vsnprintf(small, sizeof small, format, again);
  va_end(again);
  if (size < 0) {
    va_end(args);
    return 1;
  }
  if (static_cast<std::size_t>(size) < sizeof small) {
    outputFile.Write(std::string_view(small, static_cast<std::size_t>(size)));
    va_end(args);
    return 1;
  }
  std::string text(static_cast<std::size_t>(size), '\0');
  std::vsnprintf(text.data(), text.size() + 1, format, args);
  va_end(args);
  outputFile.Write(text);
  return 1;
}

int CS2kConverter::WriteOutput(const std::string& inputPath) {
  ui_.SetStage(3);
  std::string outputPath = quillmesh::OutputPathFor(inputPath);
  try {
    outputFile.Create(outputPath, inputFile.Handle());
    WriteText(";---------------------------------------------------------------------------\n");
    WriteText(";  TARVO/Frame Text(TVT) File.\n");
    WriteText(";  %s\n", outputPath.c_str());
    WriteText(";---------------------------------------------------------------------------\n\n");
    int code = WriteCommands();
    if (code != 0) {
      outputFile.Close();
      return code;
    }
    WriteText("*ENDDATA");
    outputFile.Close();
  } catch (const TvtFileError& error) {
    outputFile.Abandon();
    ui_.ShowMessage(error.text, "");
  }
  return 0;
}

int CS2kConverter::WriteCommands() {
  ui_.SetRange(kWriterStepCount);
  return RunSteps(WriterSteps(), kWriterStepCount);
}
