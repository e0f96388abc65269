// The TVT file: its header, the writer steps in their order, its end mark.
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "frame/converter.h"
#include "frame/steps.h"
#include "s2k/keys.h"
#include "tvt/g_format.h"

namespace {

// A simple format's pieces put straight into the file's buffer; \returns
// false, having kept nothing, for a number printf spells out (inf, nan).
// Texts, blanks and numbers go in whole blocks: the room is there, and what
// lies past the end is written over or dropped.
bool WriteSimple(TvtOutputFile& file, const TvtFormats::Format& format, va_list args) {
  constexpr std::size_t kBlock = TvtFormats::kBlock;
  static constexpr char kBlanks[kBlock] = {' ', ' ', ' ', ' ', ' ', ' ', ' ', ' ',
                                           ' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
  char* start = file.Room(format.room);
  char* at = start;
  auto pad = [&at](int blanks) {
    if (blanks <= 0) return;
    std::memcpy(at, kBlanks, kBlock);
    for (int done = kBlock; done < blanks; done += kBlock) std::memcpy(at + done, kBlanks, kBlock);
    at += blanks;
  };
  for (const TvtFormats::Piece& piece : format.pieces) {
    const char* text = format.text.data() + piece.textAt;
    std::memcpy(at, text, kBlock);
    if (piece.textSize > kBlock) std::memcpy(at + kBlock, text + kBlock, piece.textSize - kBlock);
    at += piece.textSize;
    char digits[kFormatGRoom];
    char* end;
    switch (piece.kind) {
      case 'd':
        end = std::to_chars(digits, digits + sizeof digits, va_arg(args, int)).ptr;
        break;
      case 'g': {
        const double number = va_arg(args, double);
        if (!std::isfinite(number)) return false;
        end = FormatG(digits, number);  // at most 13 bytes
        break;
      }
      case 's': {
        const char* value = va_arg(args, const char*);
        if (!value) value = "(null)";
        const std::size_t size = std::strlen(value);
        const auto used = static_cast<std::size_t>(at - start);
        start = file.Room(used + size + format.room);
        at = start + used;
        pad(piece.width - static_cast<int>(size));
        std::memcpy(at, value, size);
        at += size;
        continue;
      }
      default:  // the text at the end
        continue;
    }
    const auto size = static_cast<int>(end - digits);
    pad(piece.width - size);
    std::memcpy(at, digits, kBlock);
    at += size;
  }
  file.Commit(at);
  return true;
}

}  // namespace

int CS2kConverter::WriteText(const char* format, ...) {
  va_list args;
  va_start(args, format);
  va_list simple;
  va_copy(simple, args);
  const TvtFormats::Format& parsed = formats_.Find(format);
  bool done = !parsed.pieces.empty() && WriteSimple(outputFile, parsed, simple);
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
