// The desktop windows driven through the C entry points on an X server: the
// test chooses files in the real dialog, presses OK on the real boxes and
// stops runs with the real button and with Esc sent through the X server.
// GoogleTest before the X headers, whose macros clash with its names.
#include <gtest/gtest.h>
// clang-format off
#include <gtk/gtk.h>
#include <gdk/x11/gdkx.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <X11/Xatom.h>
// clang-format on
#include <cairo.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstring>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "quillmesh/convert.h"
#include "quillmesh/desktop.hpp"
#include "quillmesh/quillmesh.hpp"
#include "quillmesh/terminal.hpp"

namespace fs = std::filesystem;

namespace {

constexpr const char* kProgressTitle = "Conversion Progress Window";
constexpr int kScreenWidth = 1280, kScreenHeight = 800;  // as the test's X server is started

// One box in each stage: two area mesh tables in reading (the second the
// last table), self weight in conversion step 6, renumbered joints at
// *NODE, the third step of writing. 15 lines.
const char* kBoxInEachStage =
    "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n"
    "   Area=1   AutoMesh=Yes\n"
    "   Area=2   AutoMesh=Yes\n"
    "\n"
    "TABLE:  \"JOINT COORDINATES\"\n"
    "   Joint=A   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=0   GlobalY=0   GlobalZ=0\n"
    "   Joint=B   CoordSys=GLOBAL   CoordType=Cartesian   GlobalX=1   GlobalY=0   GlobalZ=0\n"
    "\n"
    "TABLE:  \"LOAD CASE DEFINITIONS\"\n"
    "   LoadCase=DEAD   DesignType=DEAD   SelfWtMult=1\n"
    "\n"
    "TABLE:  \"AREA AUTO MESH ASSIGNMENTS\"\n"
    "   Area=3   AutoMesh=Yes\n"
    "\n"
    "END TABLE DATA\n";

const char* kMinimal = "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes   UY=Yes   UZ=Yes\n\nEND\n";

std::string Text(const char* key) { return quillmesh::LoadMessage(key); }

std::string ReadFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

void WriteFile(const fs::path& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
}

class Folder {
 public:
  Folder() {
    std::string pattern = (fs::temp_directory_path() / "quillmesh-desktop-XXXXXX").string();
    path_ = mkdtemp(pattern.data()) ? fs::path(pattern) : fs::path();
  }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  fs::path operator/(const std::string& name) const { return path_ / name; }

 private:
  fs::path path_;
};

// ---- Looking at the windows.

std::vector<GtkWindow*> Windows() {
  std::vector<GtkWindow*> found;
  GList* all = gtk_window_list_toplevels();
  for (GList* item = all; item; item = item->next)
    if (gtk_widget_get_visible(GTK_WIDGET(item->data))) found.push_back(GTK_WINDOW(item->data));
  g_list_free(all);
  return found;
}

bool IsFrontEndWindow(GtkWindow* window) { return g_object_get_data(G_OBJECT(window), "quillmesh-window"); }

bool IsProgress(GtkWindow* window) {
  const char* title = gtk_window_get_title(window);
  return title && std::string(title) == kProgressTitle;
}

GtkWindow* ProgressWindow() {
  for (GtkWindow* window : Windows())
    if (IsProgress(window)) return window;
  return nullptr;
}

void Walk(GtkWidget* widget, const std::function<void(GtkWidget*)>& visit) {
  visit(widget);
  for (GtkWidget* child = gtk_widget_get_first_child(widget); child; child = gtk_widget_get_next_sibling(child))
    Walk(child, visit);
}

template <typename T>
std::vector<T*> Find(GtkWindow* window, GType type) {
  std::vector<T*> found;
  Walk(GTK_WIDGET(window), [&](GtkWidget* widget) {
    if (G_TYPE_CHECK_INSTANCE_TYPE(widget, type)) found.push_back(reinterpret_cast<T*>(widget));
  });
  return found;
}

GtkButton* ButtonLabelled(GtkWindow* window, const std::string& label) {
  for (GtkButton* button : Find<GtkButton>(window, GTK_TYPE_BUTTON)) {
    const char* text = gtk_button_get_label(button);
    if (text && label == text) return button;
  }
  return nullptr;
}

Window XidOf(GtkWindow* window) {
  GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window));
  return surface ? gdk_x11_surface_get_xid(surface) : 0;
}

Display* XDisplay() { return gdk_x11_display_get_xdisplay(gdk_display_get_default()); }

struct Rect {
  int x = 0, y = 0, width = 0, height = 0;
};


Rect ScreenRect(GtkWindow* window) {
  Window child = 0;
  int x = 0, y = 0;
  XTranslateCoordinates(XDisplay(), XidOf(window), DefaultRootWindow(XDisplay()), 0, 0, &x, &y, &child);
  GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window));
  return {x, y, gdk_surface_get_width(surface), gdk_surface_get_height(surface)};
}

void Pump(int milliseconds) {
  gint64 until = g_get_monotonic_time() + milliseconds * 1000;
  while (g_get_monotonic_time() < until) {
    while (g_main_context_pending(nullptr)) g_main_context_iteration(nullptr, FALSE);
    g_usleep(2000);
  }
}

// A picture of a window as the X server shows it, for the documentation.
void Screenshot(GtkWindow* window, const std::string& name) {
  const char* folder = std::getenv("QUILLMESH_SCREENSHOTS");
  if (!folder || !*folder) return;
  Pump(150);  // let it draw
  Rect rect = ScreenRect(window);
  XImage* image = XGetImage(XDisplay(), DefaultRootWindow(XDisplay()), rect.x, rect.y,
                            static_cast<unsigned>(rect.width), static_cast<unsigned>(rect.height), AllPlanes,
                            ZPixmap);
  if (!image) return;
  cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, rect.width, rect.height);
  unsigned char* data = cairo_image_surface_get_data(surface);
  int stride = cairo_image_surface_get_stride(surface);
  for (int y = 0; y < rect.height; ++y)
    for (int x = 0; x < rect.width; ++x)
      reinterpret_cast<uint32_t*>(data + y * stride)[x] = static_cast<uint32_t>(XGetPixel(image, x, y));
  cairo_surface_mark_dirty(surface);
  cairo_surface_write_to_png(surface, (fs::path(folder) / (name + ".png")).c_str());
  cairo_surface_destroy(surface);
  XDestroyImage(image);
}

// ---- The user the test plays.

enum class StopBy { Nothing, Button, Escape };

// What the progress window showed while a box was up.
struct BoxSeen {
  std::string text;
  bool progressShown = false;
  bool progressEnabled = false;
  std::string stage;
  double fraction = -1;
  Rect progressRect;  // on the screen
};

struct User {
  // The dialog: the file to choose, empty to leave it with Cancel.
  fs::path choose;
  // After OK on box number stopAfterBox (from 0), stop the run.
  int stopAfterBox = -1;
  StopBy stopBy = StopBy::Nothing;
  std::string screenshotPrefix;

  // What was seen.
  int dialogs = 0;
  int openPresses = 0;
  std::vector<std::string> filterNames;
  std::vector<BoxSeen> boxes;
  bool progressEverShown = false;
  bool stopDone = false;
};

User* user = nullptr;

// A press and release of the first mouse button on the middle of \p widget,
// through the X server.
void Click(GtkWidget* widget) {
  GtkWindow* window = GTK_WINDOW(gtk_widget_get_root(widget));
  double x = 0, y = 0, offsetX = 0, offsetY = 0;
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  gtk_widget_translate_coordinates(widget, GTK_WIDGET(window), gtk_widget_get_width(widget) / 2.0,
                                   gtk_widget_get_height(widget) / 2.0, &x, &y);
  G_GNUC_END_IGNORE_DEPRECATIONS
  gtk_native_get_surface_transform(GTK_NATIVE(window), &offsetX, &offsetY);
  Rect on = ScreenRect(window);
  Display* display = XDisplay();
  XTestFakeMotionEvent(display, -1, on.x + static_cast<int>(offsetX + x), on.y + static_cast<int>(offsetY + y), 0);
  XTestFakeButtonEvent(display, 1, True, 0);
  XTestFakeButtonEvent(display, 1, False, 0);
  XSync(display, False);
}

void PressEscape(GtkWindow* window) {
  Display* display = XDisplay();
  XSetInputFocus(display, XidOf(window), RevertToParent, CurrentTime);
  KeyCode escape = XKeysymToKeycode(display, XK_Escape);
  XTestFakeKeyEvent(display, escape, True, 0);
  XTestFakeKeyEvent(display, escape, False, 0);
  XSync(display, False);
}

void Stop(User& who) {
  GtkWindow* progress = ProgressWindow();
  if (!progress) return;
  if (who.stopBy == StopBy::Button)
    Click(GTK_WIDGET(ButtonLabelled(progress, "Stop Progress of Conversion!!!")));
  else
    PressEscape(progress);
  who.stopDone = true;
}

void HandleDialog(GtkWindow* window) {
  User& who = *user;
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  GtkFileChooser* chooser = GTK_FILE_CHOOSER(window);
  if (!g_object_get_data(G_OBJECT(window), "test-seen")) {
    g_object_set_data(G_OBJECT(window), "test-seen", GINT_TO_POINTER(1));
    ++who.dialogs;
    GListModel* filters = gtk_file_chooser_get_filters(chooser);
    for (guint i = 0; i < g_list_model_get_n_items(filters); ++i) {
      GtkFileFilter* filter = GTK_FILE_FILTER(g_list_model_get_item(filters, i));
      who.filterNames.push_back(gtk_file_filter_get_name(filter) ? gtk_file_filter_get_name(filter) : "");
      g_object_unref(filter);
    }
    g_object_unref(filters);
    if (who.choose.empty()) {
      gtk_widget_activate(gtk_dialog_get_widget_for_response(GTK_DIALOG(window), GTK_RESPONSE_CANCEL));
      return;
    }
    if (!who.screenshotPrefix.empty()) Screenshot(window, who.screenshotPrefix + "file-dialog");
    // Typed as a user types a path into the dialog.
    for (GtkWidget* widget : Find<GtkWidget>(window, GTK_TYPE_FILE_CHOOSER_WIDGET))
      g_signal_emit_by_name(widget, "location-popup", who.choose.c_str());
    return;
  }
  int presses = GPOINTER_TO_INT(g_object_get_data(G_OBJECT(window), "test-accepted"));
  if (presses == 1 && who.boxes.empty()) return;  // the dialog may still be looking at the file
  g_object_set_data(G_OBJECT(window), "test-accepted", GINT_TO_POINTER(presses + 1));
  // Open; if the dialog is still up after it (the file was not found), Cancel.
  // From a source of its own, as a box may come up in the middle.
  GtkWidget* button = gtk_dialog_get_widget_for_response(GTK_DIALOG(window), presses == 0 ? GTK_RESPONSE_ACCEPT
                                                                                          : GTK_RESPONSE_CANCEL);
  G_GNUC_END_IGNORE_DEPRECATIONS
  if (presses == 0) ++who.openPresses;
  if (presses < 2)
    g_idle_add_once([](gpointer widget) { gtk_widget_activate(GTK_WIDGET(widget)); }, button);
}

gboolean StopWhenEnabled(gpointer) {
  if (!user || user->stopDone) return G_SOURCE_REMOVE;
  GtkWindow* progress = ProgressWindow();
  if (progress && gtk_widget_get_sensitive(GTK_WIDGET(progress))) {
    Stop(*user);
    return G_SOURCE_REMOVE;
  }
  return G_SOURCE_CONTINUE;
}

void HandleBox(GtkWindow* window) {
  User& who = *user;
  if (g_object_get_data(G_OBJECT(window), "test-seen")) return;
  GtkButton* ok = ButtonLabelled(window, "OK");
  if (!ok || !gtk_widget_get_mapped(GTK_WIDGET(ok)) || gtk_widget_get_width(GTK_WIDGET(ok)) == 0) return;
  g_object_set_data(G_OBJECT(window), "test-seen", GINT_TO_POINTER(1));
  BoxSeen seen;
  std::vector<GtkLabel*> labels = Find<GtkLabel>(window, GTK_TYPE_LABEL);
  for (GtkLabel* label : labels)
    if (!gtk_widget_get_ancestor(GTK_WIDGET(label), GTK_TYPE_BUTTON)) {
      seen.text = gtk_label_get_text(label);
      break;
    }
  if (GtkWindow* progress = ProgressWindow()) {
    seen.progressShown = true;
    seen.progressEnabled = gtk_widget_get_sensitive(GTK_WIDGET(progress));
    seen.progressRect = ScreenRect(progress);
    std::vector<GtkLabel*> progressLabels = Find<GtkLabel>(progress, GTK_TYPE_LABEL);
    for (GtkLabel* label : progressLabels)
      if (std::string(gtk_label_get_text(label)) != "Status : " &&
          !gtk_widget_get_ancestor(GTK_WIDGET(label), GTK_TYPE_BUTTON))
        seen.stage = gtk_label_get_text(label);
    std::vector<GtkProgressBar*> bars = Find<GtkProgressBar>(progress, GTK_TYPE_PROGRESS_BAR);
    if (!bars.empty()) seen.fraction = gtk_progress_bar_get_fraction(bars[0]);
    if (!who.screenshotPrefix.empty()) {
      // Apart, for the pictures: with no window manager both stand at the corner.
      XMoveWindow(XDisplay(), XidOf(window), 0, seen.progressRect.y + seen.progressRect.height + 20);
      XSync(XDisplay(), False);
      const char* stageNames[][2] = {{"Read SAP2000 V8 *.s2k file", "before-reading"},
                                     {"Reading [s2k] file of SAP2000 V8", "reading"},
                                     {"Converting [s2k] file to TARVO text file", "converting"},
                                     {"Writing TARVO text file", "writing"}};
      for (auto& [stage, name] : stageNames)
        if (seen.stage == stage && (who.boxes.empty() || who.boxes.back().stage != stage))
          Screenshot(progress, who.screenshotPrefix + "progress-" + name);
    }
  }
  if (!who.screenshotPrefix.empty() && who.boxes.empty()) Screenshot(window, who.screenshotPrefix + "message-box");
  int number = static_cast<int>(who.boxes.size());
  who.boxes.push_back(seen);
  Click(GTK_WIDGET(ok));
  // The progress window stands still while a box is up: the stop comes once
  // it answers again.
  if (number == who.stopAfterBox) g_idle_add(StopWhenEnabled, nullptr);
}

gboolean Tick(gpointer) {
  if (!user) return G_SOURCE_REMOVE;
  for (GtkWindow* window : Windows()) {
    if (GTK_IS_FILE_CHOOSER(window))
      HandleDialog(window);
    else if (IsProgress(window))
      user->progressEverShown = true;
    else if (IsFrontEndWindow(window))
      HandleBox(window);
  }
  return G_SOURCE_CONTINUE;
}

struct Result {
  int code = 0;
  std::string outputPath;
  bool windowsLeft = false;
};

// One call of ConvertFile2, played by \p who.
Result Play(User& who, const char* startPath = "untouched") {
  user = &who;
  guint tick = g_timeout_add(5, Tick, nullptr);
  QmText path = QM_TEXT_INIT;
  path.text = strdup(startPath);
  path.length = std::strlen(startPath);
  Result result;
  result.code = ConvertFile2(&path);
  result.outputPath = path.text ? path.text : "";
  QmTextFree(&path);
  g_source_remove(tick);
  user = nullptr;
  Pump(20);
  for (GtkWindow* window : Windows())
    if (IsFrontEndWindow(window)) result.windowsLeft = true;
  return result;
}

// ---- The tests.

TEST(DesktopDialog, CancelGivesOneWithNoWindowAndNoMessage) {
  User who;
  Result result = Play(who);
  EXPECT_EQ(1, result.code);
  EXPECT_EQ("untouched", result.outputPath) << "the host's path stays as it was";
  EXPECT_EQ(1, who.dialogs);
  EXPECT_TRUE(who.boxes.empty());
  EXPECT_FALSE(who.progressEverShown);
  EXPECT_FALSE(result.windowsLeft);
}

TEST(DesktopDialog, FiltersComeFromTheCatalogueText) {
  User who;
  Play(who);
  const std::string fallback = "Error : DLL is not loaded. check message dll!";
  std::string text = Text("IDS_S2KV8_FILE_FILTER");
  if (std::getenv("QUILLMESH_TEST_NO_CATALOGUE")) {
    ASSERT_EQ(fallback, text) << "the catalogue was found";
  }
  if (text == fallback) {
    // Run without the catalogue: its fallback text is the one filter.
    EXPECT_EQ(std::vector<std::string>{fallback}, who.filterNames);
    return;
  }
  if (text != "SAP2000 V8 text files (*.s2k)|*.s2k|All files (*)|*||")
    GTEST_SKIP() << "the catalogue's filter text has changed: " << text;
  EXPECT_EQ((std::vector<std::string>{"SAP2000 V8 text files (*.s2k)", "All files (*)"}), who.filterNames);
}

TEST(DesktopDialog, TypedNamesMustExistAndGetTheDefaultExtension) {
  Folder folder;
  WriteFile(folder / "model.dat", kMinimal);
  {
    User who;
    who.choose = folder / "model";  // typed without an extension
    Result result = Play(who);
    EXPECT_EQ(0, result.code);
    EXPECT_EQ((folder / "model.tvt").string(), result.outputPath);
    EXPECT_TRUE(fs::exists(folder / "model.tvt"));
  }
  {
    User who;
    who.choose = folder / "missing.s2k";
    Result result = Play(who);
    EXPECT_EQ(1, result.code) << "left with Cancel after the box";
    ASSERT_EQ(1u, who.boxes.size());
    EXPECT_EQ((folder / "missing.s2k").string() + "\nFile not found.\nCheck the file name and try again.",
              who.boxes[0].text);
    EXPECT_FALSE(who.boxes[0].progressShown);
    EXPECT_FALSE(fs::exists(folder / "missing.tvt"));
  }
}

TEST(DesktopRun, ChosenFileConvertsWithOkOnEachBox) {
  Folder folder;
  WriteFile(folder / "model.s2k", kBoxInEachStage);
  User who;
  who.choose = folder / "model.s2k";
  fs::path here = fs::current_path();
  if (std::getenv("QUILLMESH_SCREENSHOTS")) {
    who.screenshotPrefix = "desktop-";
    fs::current_path(folder / "");  // the dialog opens in the current folder
  }
  Result result = Play(who);
  fs::current_path(here);
  ASSERT_EQ(0, result.code);
  EXPECT_EQ((folder / "model.tvt").string(), result.outputPath);
  EXPECT_FALSE(result.windowsLeft) << "the progress window closes at the end of the run";
  std::string tvt = ReadFile(folder / "model.tvt");
  EXPECT_TRUE(tvt.size() >= 8 && tvt.compare(tvt.size() - 8, 8, "*ENDDATA") == 0);

  // Each box in its stage, with the bar where the run had brought it.
  struct Want {
    const char* key;
    const char* stage;
    double fraction;
  };
  const Want want[] = {
      {"IDS_S2KV8_Export_must_be_executed", "Read SAP2000 V8 *.s2k file", 0.0},  // before reading
      {"IDS_S2KV8_AREA_AtMesh_Not_Convert", "Reading [s2k] file of SAP2000 V8", 2.0 / 15},
      {"IDS_S2KV8_AREA_AtMesh_Not_Convert", "Reading [s2k] file of SAP2000 V8", 9.0 / 15},  // short of full
      {"IDS_S2KV8_FRAM_GRAV_Not_Convert", "Converting [s2k] file to TARVO text file", 5.0 / 20},
      {"IDS_S2KV8_NODE_Renumbering", "Writing TARVO text file", 2.0 / 37},
  };
  ASSERT_EQ(std::size(want), who.boxes.size());
  for (std::size_t i = 0; i < who.boxes.size(); ++i) {
    const BoxSeen& seen = who.boxes[i];
    EXPECT_EQ(Text(want[i].key), seen.text) << i;
    EXPECT_TRUE(seen.progressShown) << i;
    EXPECT_FALSE(seen.progressEnabled) << i << ": the progress window is disabled under a box";
    EXPECT_EQ(want[i].stage, seen.stage) << i;
    EXPECT_NEAR(want[i].fraction, seen.fraction, 1e-9) << i;
  }
}

TEST(DesktopRun, StopInEachStageByButtonAndByEsc) {
  struct Case {
    const char* name;
    int afterBox;
    bool outputLeft;  // as far as written, without its end mark
  };
  for (StopBy by : {StopBy::Button, StopBy::Escape}) {
    for (const Case& c : {Case{"before reading", 0, false}, Case{"reading", 1, false},
                          Case{"conversion", 3, false}, Case{"writing", 4, true}}) {
      std::string name = std::string(c.name) + (by == StopBy::Button ? " by the button" : " by Esc");
      Folder folder;
      WriteFile(folder / "model.s2k", kBoxInEachStage);
      User who;
      who.choose = folder / "model.s2k";
      who.stopAfterBox = c.afterBox;
      who.stopBy = by;
      Result result = Play(who);
      EXPECT_EQ(1, result.code) << name;
      EXPECT_EQ("untouched", result.outputPath) << name;
      EXPECT_TRUE(who.stopDone) << name;
      EXPECT_EQ(static_cast<std::size_t>(c.afterBox + 1), who.boxes.size()) << name << ": no box after the stop";
      EXPECT_FALSE(result.windowsLeft) << name;
      EXPECT_EQ(c.outputLeft, fs::exists(folder / "model.tvt")) << name;
      if (c.outputLeft) {
        std::string tvt = ReadFile(folder / "model.tvt");
        EXPECT_NE(std::string::npos, tvt.find("*NODE")) << name;
        EXPECT_EQ(std::string::npos, tvt.find("*ENDDATA")) << name;
      }
    }
  }
}

TEST(DesktopRun, BarRangeIsCutTo16BitsAndConversionEndsAtNineteenOfTwenty) {
  // 65536 FILE lines outside any table, then the model: 65551 lines, a range
  // of 15 once cut, and reading positions far beyond it.
  Folder folder;
  std::string text;
  for (int i = 0; i < 65536; ++i) text += "FILE x\n";
  WriteFile(folder / "model.s2k", text + kBoxInEachStage);
  // The output cannot be created where a folder stands: its box comes in
  // writing before the writer's range is set, and no command is written.
  fs::create_directory(folder / "model.tvt");
  User who;
  who.choose = folder / "model.s2k";
  Result result = Play(who);
  EXPECT_EQ(0, result.code) << "a file error while writing still ends the run with 0";
  ASSERT_EQ(5u, who.boxes.size()) << who.boxes.back().text;
  EXPECT_NEAR(1.0, who.boxes[1].fraction, 1e-9) << "reading positions beyond the cut range stand at its end";
  EXPECT_NE(std::string::npos, who.boxes[4].text.find("model.tvt")) << who.boxes[4].text;
  EXPECT_EQ("Writing TARVO text file", who.boxes[4].stage);
  EXPECT_NEAR(19.0 / 20, who.boxes[4].fraction, 1e-9) << who.boxes[4].text;
}

TEST(DesktopRun, CallsTwiceInARow) {
  Folder folder;
  WriteFile(folder / "model.s2k", kMinimal);
  for (int call = 0; call < 2; ++call) {
    User who;
    who.choose = folder / "model.s2k";
    Result result = Play(who);
    EXPECT_EQ(0, result.code) << call;
    EXPECT_EQ(1u, who.boxes.size()) << call;
    EXPECT_FALSE(result.windowsLeft) << call;
  }
}

TEST(DesktopPlacement, TopLeftOnTheProgramWindowKeptOnTheScreen) {
  struct Case {
    const char* name;
    int x, y;
    // The expected corner: -1 for the screen's edge less the window's size.
    int wantX, wantY;
  };
  Folder folder;
  WriteFile(folder / "model.s2k", kMinimal);
  for (const Case& c : {Case{"inside", 40, 30, 40, 30}, Case{"near the right and bottom edges", 1100, 700, -1, -1},
                        Case{"beyond the left and top edges", -60, -40, 0, 0}}) {
    GtkWindow* host = GTK_WINDOW(gtk_window_new());
    gtk_window_set_title(host, "Host");
    gtk_window_set_default_size(host, 300, 200);
    gtk_window_present(host);
    Pump(50);
    XMoveWindow(XDisplay(), XidOf(host), c.x, c.y);
    XSync(XDisplay(), False);
    Pump(50);
    Rect hostRect = ScreenRect(host);
    ASSERT_EQ(c.x, hostRect.x) << c.name;
    ASSERT_EQ(c.y, hostRect.y) << c.name;

    User who;
    who.choose = folder / "model.s2k";
    Result result = Play(who);
    gtk_window_destroy(host);
    Pump(20);
    EXPECT_EQ(0, result.code) << c.name;
    ASSERT_EQ(1u, who.boxes.size()) << c.name;
    Rect placed = who.boxes[0].progressRect;  // measured while the first box is up
    ASSERT_GT(placed.width, 0) << c.name;
    EXPECT_EQ(c.wantX < 0 ? kScreenWidth - 1 - placed.width : c.wantX, placed.x) << c.name;
    EXPECT_EQ(c.wantY < 0 ? kScreenHeight - 1 - placed.height : c.wantY, placed.y) << c.name;
  }
}

TEST(DesktopRun, AReadThatCouldNeverEndIsStoppedWithABox) {
  struct Case {
    const char* name;
    const char* text;
    const char* says;
  };
  for (const Case& c : {
           Case{"inside a table", "TABLE:  \"ACTIVE DEGREES OF FREEDOM\"\n   UX=Yes\n   UY=Yes", "ends inside a table"},
           Case{"a FILE line", "FILE a.$2k was saved\n", "ends with a FILE line outside any table"},
       }) {
    Folder folder;
    WriteFile(folder / "model.s2k", c.text);
    User who;
    who.choose = folder / "model.s2k";
    Result result = Play(who);
    EXPECT_EQ(1, result.code) << c.name;
    ASSERT_EQ(2u, who.boxes.size()) << c.name;
    EXPECT_NE(std::string::npos, who.boxes[1].text.find(c.says)) << c.name << ": " << who.boxes[1].text;
    EXPECT_FALSE(who.boxes[1].progressShown) << c.name << ": the window is closed first";
    EXPECT_FALSE(result.windowsLeft) << c.name;
    EXPECT_FALSE(fs::exists(folder / "model.tvt")) << c.name;
  }
}

// The program's own windows on the X server: the shown top-level windows of
// process \p pid, with their titles.
std::vector<std::pair<Window, std::string>> WindowsOf(pid_t pid) {
  std::vector<std::pair<Window, std::string>> found;
  Display* display = XDisplay();
  Atom pidAtom = XInternAtom(display, "_NET_WM_PID", False);
  Window root = 0, parent = 0, *children = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display, DefaultRootWindow(display), &root, &parent, &children, &count)) return found;
  for (unsigned i = 0; i < count; ++i) {
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(display, children[i], &attributes) || attributes.map_state != IsViewable) continue;
    Atom type = 0;
    int format = 0;
    unsigned long items = 0, after = 0;
    unsigned char* data = nullptr;
    bool ours = XGetWindowProperty(display, children[i], pidAtom, 0, 1, False, XA_CARDINAL, &type, &format, &items,
                                   &after, &data) == Success &&
                data && items == 1 && static_cast<pid_t>(*reinterpret_cast<unsigned long*>(data)) == pid;
    if (data) XFree(data);
    if (!ours) continue;
    char* name = nullptr;
    std::string title = XFetchName(display, children[i], &name) && name ? name : "";
    if (name) XFree(name);
    found.emplace_back(children[i], title);
  }
  if (children) XFree(children);
  return found;
}

TEST(DesktopProgram, ConvertsTheNamedFileWithReturnOnEachBox) {
  Folder folder;
  WriteFile(folder / "model.s2k", kMinimal);
  int out[2];
  ASSERT_EQ(0, pipe(out));
  pid_t child = fork();
  if (child == 0) {
    dup2(out[1], 1);
    close(out[0]);
    execl(QUILLMESH_GUI, QUILLMESH_GUI, (folder / "model.s2k").c_str(), static_cast<char*>(nullptr));
    _exit(127);
  }
  close(out[1]);
  Display* display = XDisplay();
  KeyCode enter = XKeysymToKeycode(display, XK_Return);
  std::vector<std::string> boxesAnswered;
  int status = 0;
  bool ended = false;
  gint64 until = g_get_monotonic_time() + 20 * G_USEC_PER_SEC, lastPress = 0;
  while (g_get_monotonic_time() < until) {
    if (waitpid(child, &status, WNOHANG) == child) {
      ended = true;
      break;
    }
    g_usleep(20000);
    if (g_get_monotonic_time() - lastPress < 300000) continue;  // give a box the time to close
    for (auto& [window, title] : WindowsOf(child)) {
      if (title == kProgressTitle) continue;
      // A box: OK is its default button, so Return closes it.
      XSetInputFocus(display, window, RevertToParent, CurrentTime);
      XTestFakeKeyEvent(display, enter, True, 0);
      XTestFakeKeyEvent(display, enter, False, 0);
      XSync(display, False);
      boxesAnswered.push_back(title);
      lastPress = g_get_monotonic_time();
      break;
    }
  }
  if (!ended) kill(child, SIGKILL), waitpid(child, &status, 0);
  std::string printed;
  char buffer[512];
  for (ssize_t n; (n = read(out[0], buffer, sizeof buffer)) > 0;) printed.append(buffer, static_cast<std::size_t>(n));
  close(out[0]);
  ASSERT_TRUE(ended) << "quillmesh-gui did not end";
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(0, WEXITSTATUS(status));
  EXPECT_EQ((folder / "model.tvt").string() + "\n", printed);
  EXPECT_TRUE(fs::exists(folder / "model.tvt"));
  EXPECT_EQ(2u, boxesAnswered.size()) << "the opening message, then the output path";
}

TEST(DesktopChoice, DesktopOnTheMainThreadTerminalElsewhereOrWhenForced) {
  struct Case {
    const char* name;
    const char* mode;  // QUILLMESH_UI
    bool otherThread;
    bool wantDesktop;
    const char* says;  // on stderr; empty for nothing
  };
  for (const Case& c : {
           Case{"a display", "", false, true, ""},
           Case{"forced desktop", "desktop", false, true, ""},
           Case{"forced terminal", "terminal", false, false, ""},
           Case{"another thread", "", true, false, "main thread only"},
           Case{"forced desktop on another thread", "desktop", true, false, "main thread only"},
           Case{"an unknown value", "web", false, true, "QUILLMESH_UI=web is neither terminal nor desktop"},
       }) {
    setenv("QUILLMESH_UI", c.mode, 1);
    std::unique_ptr<quillmesh::UserInterface> ui;
    testing::internal::CaptureStderr();
    if (c.otherThread)
      std::thread([&] { ui = quillmesh::ChooseUserInterface(); }).join();
    else
      ui = quillmesh::ChooseUserInterface();
    std::string said = testing::internal::GetCapturedStderr();
    ASSERT_TRUE(ui) << c.name;
    EXPECT_EQ(c.wantDesktop, dynamic_cast<quillmesh::TerminalUserInterface*>(ui.get()) == nullptr) << c.name;
    if (*c.says)
      EXPECT_NE(std::string::npos, said.find(c.says)) << c.name << ": " << said;
    else
      EXPECT_EQ("", said) << c.name;
  }
  setenv("QUILLMESH_UI", "desktop", 1);
}

}  // namespace

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  g_set_prgname("quillmesh_desktop_tests");
  g_set_application_name("quillmesh desktop tests");
  setenv("QUILLMESH_UI", "desktop", 1);
  if (!gtk_init_check()) {
    std::printf("SKIPPED: no X server to show the desktop windows on\n");
    return 77;
  }
  return RUN_ALL_TESTS();
}
