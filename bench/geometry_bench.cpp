// Joints under renumbering with supports, local axes and diaphragms: every
// writer turns names into numbers, so the cost must grow with the model.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "quillmesh/quillmesh.hpp"

namespace {

class QuietInterface : public quillmesh::UserInterface {
 public:
  bool ChooseInputFile(const std::string&, std::string&) override { return false; }
  void ShowMessage(const std::string&, const std::string&) override {}
  void OpenProgress(int) override {}
  void SetStage(int) override {}
  void SetRange(int) override {}
  bool Advance(int) override { return true; }
  void CloseProgress() override {}
};

// Joints J1..Jn on a grid; a support on every tenth, local axes on every
// fifth (half of them advanced), a diaphragm of ten joints with one mass.
void WriteModel(const std::filesystem::path& path, int joints) {
  std::ofstream out(path);
  out << "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n";
  out << "TABLE:  \"JOINT COORDINATES\"\n";
  for (int i = 1; i <= joints; ++i)
    out << "   Joint=J" << i << "   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=" << i % 100
        << "   GlobalY=" << i / 100 << "   GlobalZ=0\n";
  out << "\nTABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n";
  for (int i = 1; i <= joints; i += 10) out << "   Joint=J" << i << "   U1=Yes   U2=Yes   U3=Yes\n";
  out << "\nTABLE:  \"JOINT LOCAL AXES ASSIGNMENTS 1 - TYPICAL\"\n";
  for (int i = 1; i <= joints; i += 5)
    out << "   Joint=J" << i << "   AngleA=30   AngleB=0   AngleC=0   AdvanceAxes=" << (i % 10 == 1 ? "Yes" : "No")
        << "\n";
  out << "\nTABLE:  \"JOINT LOCAL AXES ASSIGNMENTS 2 - ADVANCED\"\n";
  for (int i = 1; i <= joints; i += 10)
    out << "   Joint=J" << i << "   LocalPlane=12   AxOption1=\"Two Joints\"   AxVecJt1=J" << i << "   AxVecJt2=J"
        << i + 1 << "   PlOption1=\"Coord Dir\"   AxCoordDir=X   CoordDir1=Z\n";
  out << "\nTABLE:  \"JOINT ADDED MASS ASSIGNMENTS\"\n";
  for (int i = 1; i <= joints; i += 10) out << "   Joint=J" << i << "   CoordSys=GLOBAL   Mass1=1   Mass2=1\n";
  out << "\nTABLE:  \"JOINT CONSTRAINT ASSIGNMENTS\"\n";
  for (int i = 1; i <= joints; ++i) out << "   Joint=J" << i << "   Constraint=D" << (i - 1) / 10 << "   Type=Diaphragm\n";
  out << "\nTABLE:  \"CONSTRAINT DEFINITIONS - DIAPHRAGM\"\n";
  for (int d = 0; d <= (joints - 1) / 10; ++d) out << "   Name=D" << d << "   CoordSys=GLOBAL   Axis=Z\n";
  out << "\nEND TABLE DATA\n";
}

}  // namespace

int main(int argc, char** argv) {
  const int largest = argc > 1 ? std::atoi(argv[1]) : 200000;
  const std::filesystem::path folder = std::filesystem::temp_directory_path() / "quillmesh-geometry-bench";
  std::filesystem::create_directories(folder);
  std::printf("%10s %12s %10s\n", "joints", "lines", "seconds");
  for (int joints = largest / 8; joints <= largest; joints *= 2) {
    const std::filesystem::path input = folder / "model.s2k";
    WriteModel(input, joints);
    std::ifstream text(input);
    const long lines = std::count(std::istreambuf_iterator<char>(text), std::istreambuf_iterator<char>(), '\n');
    QuietInterface ui;
    auto start = std::chrono::steady_clock::now();
    int code = quillmesh::ConvertPath(input.string(), ui);
    double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    std::printf("%10d %12ld %10.2f%s\n", joints, lines, seconds, code ? "  failed" : "");
  }
  std::filesystem::remove_all(folder);
  return 0;
}
