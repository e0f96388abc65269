// Conversion time and memory by model size. Generates s2k models of growing
// size (joints, frames, areas, sections, materials, restraints, offsets,
// releases, springs, masses, local axes, diaphragms, static loads), converts each in a
// child process through ConvertPath with a silent user interface, and
// prints its time (wall and processor), peak memory and their ratios: the
// processor time to what `wc -w` takes to read the same file, so that the
// figure holds on any machine and on a busy one, and the peak to the file's
// size.
//
//   quillmesh_bench [largest joint count, default 200000] [model name] [folder]
//
// With a model name ("elements", "full", "supports" or "bridge"; "all" for
// every one) only that model runs; with a folder, the models are written
// there and kept, for a profiler.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "quillmesh/quillmesh.hpp"

namespace {

class SilentUserInterface : public quillmesh::UserInterface {
 public:
  bool ChooseInputFile(const std::string&, std::string&) override { return false; }
  void ShowMessage(const std::string&, const std::string&) override {}
  void OpenProgress(int) override {}
  void SetStage(int) override {}
  void SetRange(int) override {}
  bool Advance(int) override { return true; }
  void CloseProgress() override {}
};

struct Model {
  long rows = 0;
  long massRows = 0;
};

// A square grid of n joints; one frame per joint along the grid lines, an
// area per hundred joints, a rigid zone and a release on every tenth frame.
// With \p named, joints and frames get names that are not numbers.
// Ten static cases; a force on every joint, and a distributed and a point
// load on every frame, the cases taken in turn.
void WriteLoads(std::ostream& out, Model& model, int n, int frames, const std::string& joint,
                const std::string& frame) {
  constexpr int kCases = 10;
  out << "TABLE:  \"LOAD CASE DEFINITIONS\"\n";
  for (int c = 1; c <= kCases; ++c) out << "   LoadCase=L" << c << "   DesignType=DEAD   SelfWtMult=0\n";
  out << "\nTABLE:  \"CASE - STATIC 1 - LOAD ASSIGNMENTS\"\n";
  for (int c = 1; c <= kCases; ++c)
    out << "   Case=C" << c << "   LoadType=\"Load case\"   LoadName=L" << c << "   LoadSF=1\n";
  out << "\nTABLE:  \"ANALYSIS CASE DEFINITIONS\"\n";
  for (int c = 1; c <= kCases; ++c) out << "   Case=C" << c << "   Type=LinStatic   InitialCond=Zero\n";
  model.rows += 3 * kCases;
  out << "\nTABLE:  \"JOINT LOADS - FORCE\"\n";
  for (int i = 0; i < n; ++i, ++model.rows)
    out << "   Joint=" << joint << i + 1 << "   LoadCase=L" << i % kCases + 1
        << "   CoordSys=GLOBAL   F1=0   F2=0   F3=-1   M1=0   M2=0   M3=0\n";
  out << "\nTABLE:  \"FRAME LOADS - DISTRIBUTED\"\n";
  for (int f = 0; f < frames; ++f, ++model.rows)
    out << "   Frame=" << frame << f + 1 << "   LoadCase=L" << f % kCases + 1
        << "   CoordSys=GLOBAL   Type=Force   Dir=Gravity   DistType=RelDist   RelDistA=0   RelDistB=1   FOverLA=2   "
           "FOverLB=2\n";
  out << "\nTABLE:  \"FRAME LOADS - POINT\"\n";
  for (int f = 0; f < frames; ++f, ++model.rows)
    out << "   Frame=" << frame << f + 1 << "   LoadCase=L" << (f + 5) % kCases + 1
        << "   CoordSys=GLOBAL   Type=Force   Dir=Gravity   DistType=AbsDist   AbsDist=0.5   Force=3\n";
  out << "\n";
}

Model WriteModel(const std::filesystem::path& path, int n, bool named, bool springsAndMasses, bool loads = false) {
  std::ofstream out(path);
  Model model;
  const std::string joint = named ? "J" : "";
  const std::string frame = named ? "F" : "";
  int side = 1;
  while (side * side < n) ++side;

  out << "File bench.s2k was generated\n\n";
  out << "TABLE:  \"PROGRAM CONTROL\"\n   ProgramName=SAP2000   Version=8.0.0   CurrUnits=\"KN, m, C\"\n\n";
  ++model.rows;
  out << "TABLE:  \"MATERIAL PROPERTIES 01 - GENERAL\"\n"
         "   Material=CONC   Type=Isotropic   DesignType=Concrete   UnitMass=2.4   UnitWeight=23.5   E=25000000   "
         "U=0.2   A=0.0000099\n"
         "   Material=STEEL   Type=Isotropic   DesignType=Steel   UnitMass=7.8   UnitWeight=76.9   E=200000000   "
         "U=0.3   A=0.0000117\n\n";
  model.rows += 2;
  out << "TABLE:  \"FRAME SECTION PROPERTIES 1 - GENERAL\"\n"
         "   SectionName=COL   Material=CONC   Shape=Rectangular   t3=0.5   t2=0.5   Area=0.25   TorsConst=0.0088   "
         "I33=0.0052   I22=0.0052   AS2=0.208   AS3=0.208\n"
         "   SectionName=BEAM   Material=STEEL   Shape=\"I/Wide Flange\"   t3=0.4   t2=0.2   tf=0.015   tw=0.01   "
         "t2b=0.2   tfb=0.015   Area=0.0098\n\n";
  model.rows += 2;
  out << "TABLE:  \"AREA SECTION PROPERTIES\"\n"
         "   Section=SLAB   Material=CONC   MatAngle=0   AreaType=Shell   Type=Shell-Thin   Thickness=0.2   "
         "BendThick=0.2\n\n";
  ++model.rows;

  out << "TABLE:  \"JOINT COORDINATES\"\n";
  for (int i = 0; i < n; ++i) {
    out << "   Joint=" << joint << i + 1 << "   CoordSys=GLOBAL   CoordType=Cartesian   XorR=" << i % side
        << "   Y=" << i / side << "   Z=0   SpecialJt=No   GlobalX=" << i % side << "   GlobalY=" << i / side
        << "   GlobalZ=0\n";
  }
  out << "\n";
  model.rows += n;

  out << "TABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n";
  for (int i = 0; i < side && i < n; ++i) {
    out << "   Joint=" << joint << i + 1 << "   U1=Yes   U2=Yes   U3=Yes   R1=Yes   R2=Yes   R3=Yes\n";
    ++model.rows;
  }
  out << "\n";

  // Frame f runs from joint f to its right neighbour, or up the grid at the
  // right edge.
  std::vector<std::pair<int, int>> frames;
  frames.reserve(n);
  for (int i = 0; i < n && static_cast<int>(frames.size()) < n; ++i) {
    int right = i + 1, up = i + side;
    int j = (i % side != side - 1 && right < n) ? right : up;
    if (j >= n) j = (i + 1) % n;
    frames.emplace_back(i + 1, j + 1);
  }
  out << "TABLE:  \"CONNECTIVITY - FRAME\"\n";
  for (std::size_t f = 0; f < frames.size(); ++f)
    out << "   Frame=" << frame << f + 1 << "   JointI=" << joint << frames[f].first << "   JointJ=" << joint
        << frames[f].second << "   Length=1\n";
  out << "\n";
  out << "TABLE:  \"FRAME SECTION ASSIGNMENTS\"\n";
  for (std::size_t f = 0; f < frames.size(); ++f)
    out << "   Frame=" << frame << f + 1 << "   SectionType=Rectangular   AutoSelect=N.A.   AnalSect="
        << (f % 2 ? "BEAM" : "COL") << "   DesignSect=" << (f % 2 ? "BEAM" : "COL") << "   MatProp=Default\n";
  out << "\n";
  model.rows += 2 * static_cast<long>(frames.size());

  out << "TABLE:  \"FRAME OFFSET ALONG LENGTH ASSIGNMENTS\"\n";
  for (std::size_t f = 0; f < frames.size(); f += 10) {
    out << "   Frame=" << frame << f + 1 << "   Type=User   LengthI=0.25   LengthJ=0.25   RigidFactor=0\n";
    ++model.rows;
  }
  out << "\n";
  out << "TABLE:  \"FRAME RELEASE ASSIGNMENTS 1 - GENERAL\"\n";
  for (std::size_t f = 5; f < frames.size(); f += 10) {
    out << "   Frame=" << frame << f + 1
        << "   PI=No   V2I=No   V3I=No   TI=No   M2I=Yes   M3I=Yes   PJ=No   V2J=No   V3J=No   TJ=No   M2J=Yes   "
           "M3J=Yes   PartialFix=No\n";
    ++model.rows;
  }
  out << "\n";

  out << "TABLE:  \"CONNECTIVITY - AREA\"\n";
  int areas = 0;
  for (int i = 0; i + side + 1 < n; i += 100) {
    if (i % side == side - 1) continue;
    ++areas;
    out << "   Area=" << (named ? "A" : "") << areas << "   Joint1=" << joint << i + 1 << "   Joint2=" << joint
        << i + 2 << "   Joint3=" << joint << i + side + 1 << "   Joint4=" << joint << i + side + 2 << "\n";
  }
  out << "\n";
  out << "TABLE:  \"AREA SECTION ASSIGNMENTS\"\n";
  for (int a = 1; a <= areas; ++a)
    out << "   Area=" << (named ? "A" : "") << a << "   Section=SLAB   MatProp=Default\n";
  out << "\n";
  model.rows += 2L * areas;

  if (loads) WriteLoads(out, model, n, static_cast<int>(frames.size()), joint, frame);
  if (!springsAndMasses) {
    out << "END TABLE DATA\n";
    return model;
  }
  // Springs: uncoupled on every tenth joint, coupled on every hundredth, line
  // springs on every tenth frame and on every area. Masses: one on every
  // joint and a second on every other joint, merged by name with the frame
  // masses of every frame and the area masses of every area.
  out << "TABLE:  \"JOINT SPRING ASSIGNMENTS 1 - UNCOUPLED\"\n";
  for (int i = 0; i < n; i += 10, ++model.rows)
    out << "   Joint=" << joint << i + 1 << "   CoordSys=GLOBAL   U1=10   U2=10   U3=100   R1=0   R2=0   R3=0\n";
  out << "\nTABLE:  \"JOINT SPRING ASSIGNMENTS 2 - COUPLED\"\n";
  for (int i = 0; i < n; i += 100, ++model.rows)
    out << "   Joint=" << joint << i + 1
        << "   CoordSys=GLOBAL   U1=10   U1U2=1   U2=10   U1U3=1   U2U3=1   U3=100   R1=5   R2=5   R3=5\n";
  out << "\nTABLE:  \"FRAME LINE SPRING ASSIGNMENTS\"\n";
  for (std::size_t f = 0; f < frames.size(); f += 10, ++model.rows)
    out << "   Frame=" << frame << f + 1 << "   Dir=2   Stiffness=5\n";
  out << "\nTABLE:  \"AREA SPRING ASSIGNMENTS\"\n";
  for (int a = 1; a <= areas; ++a, ++model.rows)
    out << "   Area=" << (named ? "A" : "") << a << "   Face=5   Dir=3   Stiffness=2\n";
  out << "\nTABLE:  \"JOINT ADDED MASS ASSIGNMENTS\"\n";
  for (int pass = 1; pass <= 2; ++pass)
    for (int i = 0; i < n; i += pass, ++model.massRows)
      out << "   Joint=" << joint << i + 1 << "   CoordSys=GLOBAL   Mass1=1   Mass2=1   Mass3=1   MMI1=0   MMI2=0   MMI3=0\n";
  out << "\nTABLE:  \"FRAME ADDED MASS ASSIGNMENTS\"\n";
  for (std::size_t f = 0; f < frames.size(); ++f, ++model.massRows)
    out << "   Frame=" << frame << f + 1 << "   MassPerLen=0.1\n";
  out << "\nTABLE:  \"AREA ADDED MASS ASSIGNMENTS\"\n";
  for (int a = 1; a <= areas; ++a, ++model.massRows)
    out << "   Area=" << (named ? "A" : "") << a << "   MassPerArea=0.5\n";
  model.rows += model.massRows;
  out << "\nEND TABLE DATA\n";
  return model;
}

// Rows of a model: its lines of at least three characters that are not titles.
long CountRows(const std::filesystem::path& path) {
  std::ifstream in(path);
  long rows = 0;
  for (std::string line; std::getline(in, line);)
    if (line.size() >= 3 && line.rfind("TABLE:", 0) != 0 && line.rfind("END", 0) != 0) ++rows;
  return rows;
}

// Joints J1..Jn on a grid; a support on every tenth, local axes on every
// fifth (half of them advanced), a diaphragm of ten joints with one mass.
Model WriteSupportsModel(const std::filesystem::path& path, int joints) {
  Model model;
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
  out.close();
  model.rows = CountRows(path);
  return model;
}

// A girder of \p frames frames G1..Gn on joints J0..Jn, two lanes along all of
// it, ten vehicles (six standard, four general with three axles each) in two
// classes, one moving case; a bearing joint under every fiftieth girder joint,
// tied to it by a link, rubber isolators and linear links in turn.
Model WriteBridgeModel(const std::filesystem::path& path, int frames) {
  Model model;
  std::ofstream out(path);
  out << "TABLE:  \"PROGRAM CONTROL\"\n   CurrUnits=\"KN, m, C\"\n\n";
  out << "TABLE:  \"JOINT COORDINATES\"\n";
  for (int i = 0; i <= frames; ++i)
    out << "   Joint=J" << i << "   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=" << i * 2
        << "   GlobalY=0   GlobalZ=10\n";
  for (int i = 0; i <= frames; i += 50)
    out << "   Joint=B" << i << "   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=" << i * 2
        << "   GlobalY=0   GlobalZ=9\n";
  out << "\nTABLE:  \"JOINT RESTRAINT ASSIGNMENTS\"\n";
  for (int i = 0; i <= frames; i += 50) out << "   Joint=B" << i << "   U1=Yes   U2=Yes   U3=Yes\n";
  out << "\nTABLE:  \"CONNECTIVITY - FRAME\"\n";
  for (int f = 1; f <= frames; ++f) out << "   Frame=G" << f << "   JointI=J" << f - 1 << "   JointJ=J" << f << "\n";
  out << "\nTABLE:  \"CONNECTIVITY - LINK\"\n";
  for (int i = 0; i <= frames; i += 50) out << "   Link=K" << i << "   JointI=B" << i << "   JointJ=J" << i << "\n";
  out << "\nTABLE:  \"SUMMARY - LINK\"\n";
  for (int i = 0; i <= frames; i += 50)
    out << "   Link=K" << i << "   LinkType=" << (i % 100 ? "Linear" : "\"Rubber Isolator\"")
        << "   LinkJoint=TwoJoint   LinkProp=" << (i % 100 ? "LIN" : "LRB") << "   LocalAxes=No\n";
  out << "\nTABLE:  \"LINK PROPERTY DEFINITIONS 01 - GENERAL\"\n"
         "   Link=LIN   LinkType=Linear   Mass=0   Weight=0\n"
         "   Link=LRB   LinkType=\"Rubber Isolator\"   Mass=0   Weight=2\n";
  out << "\nTABLE:  \"LINK PROPERTY DEFINITIONS 02 - LINEAR\"\n";
  for (const char* dof : {"U1", "U2", "U3", "R1", "R2", "R3"})
    out << "   Link=LIN   DOF=" << dof << "   TransKE=100000   RotKE=1000\n";
  out << "\nTABLE:  \"LINK PROPERTY DEFINITIONS 07 - RUBBER ISOLATOR\"\n";
  for (const char* dof : {"U1", "U2", "U3"})
    out << "   Link=LRB   DOF=" << dof << "   NonLinear=Yes   TransKE=2000   TransCE=0.05   TransK=20000   "
        << "TransYield=50   Ratio=0.1\n";
  out << "\nTABLE:  \"BRIDGE LOADS 1 - LANE DEFINITIONS\"\n";
  for (int lane = 1; lane <= 2; ++lane)
    for (int f = 1; f <= frames; ++f)
      out << "   LaneName=LANE" << lane << "   Frame=G" << f << "   Eccen=" << (lane == 1 ? "-1.8" : "1.8") << "\n";
  out << "\nTABLE:  \"BRIDGE LOADS 2 - VEHICLES 1 - STANDARD\"\n";
  const char* standard[] = {"HSn-44", "Hn-44", "HL-93K", "HL-93M", "AML", "HSn-44L"};
  for (int v = 0; v < 6; ++v)
    out << "   VehName=S" << v << "   Type=" << standard[v] << "   ScaleFactor=" << (v % 2 ? 15 : 20) << "\n";
  out << "\nTABLE:  \"BRIDGE LOADS 3 - VEHICLES 2 - GENERAL\"\n";
  for (int v = 0; v < 4; ++v)
    out << "   VehName=T" << v << "   LeadUnif=0   TrailUnif=" << (v % 2) << "   FirstAxle=10   AxleMom=20   "
        << "AxleOther=30   NumInter=2\n";
  out << "\nTABLE:  \"BRIDGE LOADS 4 - VEHICLES 3 - GENERAL AXLES\"\n";
  for (int v = 0; v < 4; ++v)
    for (int a = 0; a < 3; ++a)
      out << "   VehName=T" << v << "   InterUnif=0   InterAxle=" << 50 + 10 * a << "   InterMinD=" << 4 * a
          << "   InterMaxD=" << 4 * a + 5 << "\n";
  out << "\nTABLE:  \"BRIDGE LOADS 5 - VEHICLE CLASSES\"\n";
  for (int v = 0; v < 6; ++v) out << "   VehClass=MOVE   VehName=S" << v << "   ScaleFactor=1\n";
  for (int v = 0; v < 4; ++v) out << "   VehClass=TRUCKS   VehName=T" << v << "   ScaleFactor=1\n";
  out << "\nTABLE:  \"BRIDGE LOADS 6 - BRIDGE RESPONSE\"\n"
         "   Displs=ALL   Reactions=ALL   Frames=ALL   CalcMethod=Exact   Correspond=No\n";
  out << "\nTABLE:  \"CASE - MOVING LOAD 1 - LANE ASSIGNMENTS\"\n"
         "   Case=MOVE   AssignNum=1   VehClass=MOVE   ScaleFactor=1   MinLoaded=1   MaxLoaded=2\n"
         "   Case=MOVE   AssignNum=2   VehClass=TRUCKS   ScaleFactor=1   MinLoaded=0   MaxLoaded=2\n";
  out << "\nTABLE:  \"CASE - MOVING LOAD 2 - LANES LOADED\"\n";
  for (int assign = 1; assign <= 2; ++assign)
    for (int lane = 1; lane <= 2; ++lane)
      out << "   Case=MOVE   AssignNum=" << assign << "   Lane=LANE" << lane << "\n";
  out << "\nTABLE:  \"CASE - MOVING LOAD 3 - LANE SCALE FACTORS\"\n"
         "   Case=MOVE   NumberLanes=1   ScaleFactor=1\n   Case=MOVE   NumberLanes=2   ScaleFactor=0.9\n";
  out << "\nTABLE:  \"ANALYSIS CASE DEFINITIONS\"\n   Case=MOVE   Type=LinMoving   InitialCond=Zero\n";
  out << "\nEND TABLE DATA\n";
  out.close();
  model.rows = CountRows(path);
  return model;
}

struct Result {
  int code = -1;
  double seconds = 0;
  double cpuSeconds = 0;  // user and system time: what a busy machine changes least
  long peakKb = 0;
};

double CpuSeconds(const rusage& usage) {
  return static_cast<double>(usage.ru_utime.tv_sec + usage.ru_stime.tv_sec) +
         static_cast<double>(usage.ru_utime.tv_usec + usage.ru_stime.tv_usec) / 1e6;
}

// Runs in a child so that each size has a peak memory of its own.
Result ConvertInChild(const std::filesystem::path& path) {
  int fds[2];
  if (pipe(fds) != 0) return {};
  pid_t pid = fork();
  if (pid == 0) {
    close(fds[0]);
    SilentUserInterface ui;
    rusage before{}, usage{};
    getrusage(RUSAGE_SELF, &before);
    auto start = std::chrono::steady_clock::now();
    Result result;
    result.code = quillmesh::ConvertPath(path.string(), ui);
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    getrusage(RUSAGE_SELF, &usage);
    result.cpuSeconds = CpuSeconds(usage) - CpuSeconds(before);
    result.peakKb = usage.ru_maxrss;
    ssize_t written = write(fds[1], &result, sizeof result);
    _exit(written == static_cast<ssize_t>(sizeof result) ? 0 : 1);
  }
  close(fds[1]);
  Result result;
  if (read(fds[0], &result, sizeof result) != static_cast<ssize_t>(sizeof result)) result = {};
  close(fds[0]);
  int status = 0;
  waitpid(pid, &status, 0);
  return result;
}

// The user and system seconds that `wc -w` takes to read \p path, the best
// of three.
double WordCountSeconds(const std::filesystem::path& path) {
  double best = 0;
  for (int run = 0; run < 3; ++run) {
    pid_t pid = fork();
    if (pid == 0) {
      int null = open("/dev/null", O_WRONLY);
      if (null >= 0) dup2(null, 1);
      execlp("wc", "wc", "-w", path.c_str(), static_cast<char*>(nullptr));
      _exit(127);
    }
    int status = 0;
    rusage usage{};
    wait4(pid, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) return 0;
    double seconds = CpuSeconds(usage);
    if (run == 0 || seconds < best) best = seconds;
  }
  return best;
}

}  // namespace

int main(int argc, char** argv) {
  int largest = argc > 1 ? std::atoi(argv[1]) : 200000;
  if (largest < 20) largest = 20;
  const std::string only = argc > 2 && std::string(argv[2]) != "all" ? argv[2] : "";
  const bool keep = argc > 3;
  namespace fs = std::filesystem;
  fs::path folder = keep ? fs::path(argv[3]) : fs::temp_directory_path() / ("quillmesh-bench-" + std::to_string(getpid()));
  fs::create_directories(folder);

  std::vector<int> sizes;
  for (int n = largest; n >= 200 && sizes.size() < 4; n /= 10) sizes.insert(sizes.begin(), n);

  // elements: joints, frames, areas, sections, materials, restraints, offsets
  // and releases; full: the same with springs and masses; supports: joints
  // with restraints, local axes, masses and diaphragms.
  // bridge: a girder of half as many frames with lanes, vehicles and links.
  // loads: elements with ten static cases of joint, distributed and point loads.
  enum class Kind { Elements, Full, Supports, Bridge, Loads };
  struct Scenario {
    const char* name;
    Kind kind;
    bool named;
  };
  const Scenario scenarios[] = {
      {"elements", Kind::Elements, false}, {"elements", Kind::Elements, true}, {"full", Kind::Full, false},
      {"full", Kind::Full, true},          {"supports", Kind::Supports, true}, {"bridge", Kind::Bridge, true},
      {"loads", Kind::Loads, false},       {"loads", Kind::Loads, true},
  };
  std::printf("%-9s %-9s %9s %10s %10s %8s %9s %12s %8s %8s %6s %9s %5s\n", "model", "names", "joints", "rows",
              "mass rows", "file MB", "seconds", "cpu s", "peak MB", "wc -w cpu", "ratio", "peak/file", "code");
  for (const Scenario& scenario : scenarios) {
    if (!only.empty() && only != scenario.name) continue;
    for (int n : sizes) {
      fs::path path = folder / (keep ? std::string(scenario.name) + "-" + (scenario.named ? "renumber" : "numeric") + "-" +
                                           std::to_string(n) + ".s2k"
                                     : std::string("model.s2k"));
      Model model = scenario.kind == Kind::Supports ? WriteSupportsModel(path, n)
                    : scenario.kind == Kind::Bridge   ? WriteBridgeModel(path, n / 2)
                                                      : WriteModel(path, n, scenario.named, scenario.kind == Kind::Full,
                                                                   scenario.kind == Kind::Loads);
      double megabytes = static_cast<double>(fs::file_size(path)) / (1024.0 * 1024.0);
      Result result = ConvertInChild(path);
      double wordCount = WordCountSeconds(path);
      std::printf("%-9s %-9s %9d %10ld %10ld %8.1f %9.3f %12.3f %8ld %8.3f %6.2f %9.2f %5d\n", scenario.name,
                  scenario.named ? "renumber" : "numeric", n, model.rows, model.massRows, megabytes, result.seconds,
                  result.cpuSeconds, result.peakKb / 1024, wordCount,
                  wordCount > 0 ? result.cpuSeconds / wordCount : 0.0,
                  megabytes > 0 ? static_cast<double>(result.peakKb) / 1024.0 / megabytes : 0.0, result.code);
      std::fflush(stdout);
    }
  }
  if (!keep) fs::remove_all(folder);
  return 0;
}
