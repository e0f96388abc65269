// quillmesh-gui: the desktop program. Opens the file dialog (or takes the
// file named on its command line), converts it with the progress window, and
// shows each message and then the output path in a box.
#include <cstdio>
#include <string>

#include "quillmesh/desktop.hpp"
#include "quillmesh/quillmesh.hpp"

int main(int argc, char** argv) {
  if (argc > 2 || (argc == 2 && std::string(argv[1]).rfind("-", 0) == 0)) {
    std::fputs("usage: quillmesh-gui [FILE.s2k]\n"
               "Converts a SAP2000 V8 text model into a TVT file beside it, in desktop windows.\n"
               "exit status: 0 finished, 1 stopped, 2 failed, 64 usage error\n",
               stderr);
    return 64;
  }
  std::string why;
  std::unique_ptr<quillmesh::UserInterface> ui = quillmesh::OpenDesktopUserInterface(why);
  if (!ui) {
    std::fprintf(stderr, "quillmesh-gui: no desktop windows: %s\n", why.c_str());
    return 2;
  }
  std::string output;
  int code = 0;
  if (argc == 2) {
    code = quillmesh::ConvertPath(argv[1], *ui);
    if (code == 0) output = quillmesh::OutputPathFor(argv[1]);
  } else {
    code = quillmesh::Convert(*ui, output);
  }
  if (code == 0) {
    std::printf("%s\n", output.c_str());
    ui->ShowMessage("The conversion ran to its end. The TVT file:\n" + output, "");
    return 0;
  }
  if (code == 1) return 1;  // the user gave up: nothing more to say
  ui->ShowMessage("The conversion failed; no complete TVT file was written.", "");
  return 2;
}
