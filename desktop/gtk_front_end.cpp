// The desktop front end on GTK 4: the file dialog, modal boxes with OK, and
// the progress window with its stop button and Esc.
#include <gtk/gtk.h>
#ifdef GDK_WINDOWING_X11
#include <gdk/x11/gdkx.h>
#endif
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "desktop/window_rules.h"
#include "frame/progress_texts.h"
#include "quillmesh/front_end.h"

using namespace quillmesh::desktop;

struct QmFrontEnd {
  GtkWindow* progress = nullptr;
  GtkProgressBar* bar = nullptr;
  GtkLabel* stageLabel = nullptr;
  ProgressBarModel barModel;
  double shownFraction = -1;
  std::string stageText;
  std::string shownStage;
  int stopFlag = 0;
  bool escapePressed = false;
  bool contextAcquired = false;
  std::string programName;  ///< the host's own name, the title of the boxes
};

namespace {

constexpr const char* kDefaultExtension = ".dat";

// The dispatches of one pump are bounded, so that a source that is always
// ready cannot hold the run.
constexpr int kMostDispatchesPerPump = 64;

void PumpMessages() {
  for (int i = 0; i < kMostDispatchesPerPump && g_main_context_pending(nullptr); ++i)
    g_main_context_iteration(nullptr, FALSE);
}

// Waits in the main loop until *done is set.
void RunUntil(const bool* done) {
  while (!*done) g_main_context_iteration(nullptr, TRUE);
}

bool IsOwnWindow(QmFrontEnd* ui, GtkWindow* window) {
  return window == ui->progress || g_object_get_data(G_OBJECT(window), "quillmesh-window");
}

// The program's main window: the active one of its windows, or the first
// that is shown; never one of ours.
GtkWindow* ProgramWindow(QmFrontEnd* ui) {
  GList* windows = gtk_window_list_toplevels();
  GtkWindow* found = nullptr;
  for (GList* item = windows; item; item = item->next) {
    GtkWindow* window = GTK_WINDOW(item->data);
    if (IsOwnWindow(ui, window) || !gtk_widget_get_visible(GTK_WIDGET(window))) continue;
    if (gtk_window_is_active(window)) {
      found = window;
      break;
    }
    if (!found) found = window;
  }
  g_list_free(windows);
  return found;
}

GtkWindow* NewOwnWindow() {
  GtkWindow* window = GTK_WINDOW(gtk_window_new());
  g_object_set_data(G_OBJECT(window), "quillmesh-window", GINT_TO_POINTER(1));
  return window;
}

gboolean CloseOnEscape(GtkEventControllerKey*, guint keyval, guint, GdkModifierType, gpointer window) {
  if (keyval != GDK_KEY_Escape) return FALSE;
  gtk_window_close(GTK_WINDOW(window));
  return TRUE;
}

void ShowBox(QmFrontEnd* ui, const char* text) {
  GtkWindow* box = NewOwnWindow();
  gtk_window_set_title(box, ui->programName.c_str());
  gtk_window_set_modal(box, TRUE);
  gtk_window_set_resizable(box, FALSE);
  GtkWindow* over = ui->progress ? ui->progress : ProgramWindow(ui);
  if (over) gtk_window_set_transient_for(box, over);

  GtkWidget* column = gtk_box_new(GTK_ORIENTATION_VERTICAL, 18);
  gtk_widget_set_margin_start(column, 24);
  gtk_widget_set_margin_end(column, 24);
  gtk_widget_set_margin_top(column, 18);
  gtk_widget_set_margin_bottom(column, 18);
  GtkWidget* label = gtk_label_new(text);
  gtk_label_set_wrap(GTK_LABEL(label), TRUE);
  gtk_label_set_max_width_chars(GTK_LABEL(label), 60);
  gtk_label_set_xalign(GTK_LABEL(label), 0);
  gtk_label_set_selectable(GTK_LABEL(label), TRUE);
  gtk_box_append(GTK_BOX(column), label);
  GtkWidget* ok = gtk_button_new_with_label("OK");
  gtk_widget_set_halign(ok, GTK_ALIGN_CENTER);
  gtk_widget_set_size_request(ok, 88, -1);
  gtk_box_append(GTK_BOX(column), ok);
  gtk_window_set_child(box, column);
  gtk_window_set_default_widget(box, ok);
  gtk_window_set_focus(box, ok);
  g_signal_connect_swapped(ok, "clicked", G_CALLBACK(gtk_window_close), box);
  GtkEventController* keys = gtk_event_controller_key_new();
  g_signal_connect(keys, "key-pressed", G_CALLBACK(CloseOnEscape), box);
  gtk_widget_add_controller(GTK_WIDGET(box), keys);

  bool closed = false;
  g_signal_connect_swapped(box, "destroy", G_CALLBACK(+[](bool* flag) { *flag = true; }), &closed);
  // The progress window stands still while the box is up.
  if (ui->progress) gtk_widget_set_sensitive(GTK_WIDGET(ui->progress), FALSE);
  gtk_window_present(box);
  RunUntil(&closed);
  if (ui->progress) gtk_widget_set_sensitive(GTK_WIDGET(ui->progress), TRUE);
}

// ---- The file dialog.

struct DialogRun {
  QmFrontEnd* ui;
  std::string chosen;
  bool done = false;
};

void AddFilters(GtkFileChooser* chooser, const char* filterText) {
  for (const FileFilter& entry : ParseFileFilter(filterText ? filterText : "")) {
    GtkFileFilter* filter = gtk_file_filter_new();
    gtk_file_filter_set_name(filter, entry.name.c_str());
    for (const std::string& pattern : entry.patterns) {
      // "*.ext" matches the extension in any case, as users of such files expect.
      if (pattern.size() > 2 && pattern.compare(0, 2, "*.") == 0 &&
          pattern.find_first_of("*?[", 2) == std::string::npos)
        gtk_file_filter_add_suffix(filter, pattern.c_str() + 2);
      else
        gtk_file_filter_add_pattern(filter, pattern.c_str());
    }
    gtk_file_chooser_add_filter(chooser, filter);
    g_object_unref(filter);
  }
}

void OnDialogResponse(GtkDialog* dialog, int response, DialogRun* run) {
  if (response != GTK_RESPONSE_ACCEPT) {
    run->done = true;
    return;
  }
  GFile* file = gtk_file_chooser_get_file(GTK_FILE_CHOOSER(dialog));
  char* path = file ? g_file_get_path(file) : nullptr;
  if (file) g_object_unref(file);
  std::string typed = path ? path : "";
  g_free(path);
  if (typed.empty()) return;
  std::string chosen = ResolveChosenFile(typed, kDefaultExtension, [](const std::string& name) {
    return g_file_test(name.c_str(), G_FILE_TEST_IS_REGULAR) != 0;
  });
  if (chosen.empty()) {
    // The file must exist: say so and keep the dialog open.
    std::string text = typed + "\nFile not found.\nCheck the file name and try again.";
    ShowBox(run->ui, text.c_str());
    return;
  }
  run->chosen = chosen;
  run->done = true;
}

int ChooseInputFile(QmFrontEnd* ui, const char* filter, char** path) {
  G_GNUC_BEGIN_IGNORE_DEPRECATIONS
  GtkWidget* dialog = gtk_file_chooser_dialog_new("Open", nullptr, GTK_FILE_CHOOSER_ACTION_OPEN, "_Cancel",
                                                  GTK_RESPONSE_CANCEL, "_Open", GTK_RESPONSE_ACCEPT, nullptr);
  g_object_set_data(G_OBJECT(dialog), "quillmesh-window", GINT_TO_POINTER(1));
  gtk_window_set_modal(GTK_WINDOW(dialog), TRUE);
  if (GtkWindow* program = ProgramWindow(ui)) gtk_window_set_transient_for(GTK_WINDOW(dialog), program);
  gtk_dialog_set_default_response(GTK_DIALOG(dialog), GTK_RESPONSE_ACCEPT);
  GtkFileChooser* chooser = GTK_FILE_CHOOSER(dialog);
  AddFilters(chooser, filter);
  if (char* folder = g_get_current_dir()) {
    GFile* current = g_file_new_for_path(folder);
    gtk_file_chooser_set_current_folder(chooser, current, nullptr);
    g_object_unref(current);
    g_free(folder);
  }
  DialogRun run{ui, "", false};
  g_signal_connect(dialog, "response", G_CALLBACK(OnDialogResponse), &run);
  gtk_window_present(GTK_WINDOW(dialog));
  RunUntil(&run.done);
  gtk_window_destroy(GTK_WINDOW(dialog));
  G_GNUC_END_IGNORE_DEPRECATIONS
  PumpMessages();
  if (run.chosen.empty()) return 0;
  *path = static_cast<char*>(std::malloc(run.chosen.size() + 1));
  if (!*path) return 0;
  std::memcpy(*path, run.chosen.c_str(), run.chosen.size() + 1);
  return 1;
}

// ---- The progress window.

void SizeFromTemplate(GtkWidget* widget, const TemplateControl& control) {
  Rect pixels = ToPixels(control.units);
  gtk_widget_set_size_request(widget, pixels.width, pixels.height);
}

// The bar fills the template's height, not the toolkit's thin line.
void UseTemplateBarHeight(GtkWidget* bar, int height) {
  static bool styled = false;
  if (!styled) {
    styled = true;
    std::string css = "progressbar.quillmesh-progress > trough, progressbar.quillmesh-progress > trough > progress "
                      "{ min-height: " + std::to_string(height - 4) + "px; }";
    GtkCssProvider* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, css.c_str(), -1);
    gtk_style_context_add_provider_for_display(gtk_widget_get_display(bar), GTK_STYLE_PROVIDER(provider),
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
  }
  gtk_widget_add_css_class(bar, "quillmesh-progress");
}

gboolean OnProgressKey(GtkEventControllerKey*, guint keyval, guint, GdkModifierType, gpointer data) {
  if (keyval != GDK_KEY_Escape) return FALSE;
  static_cast<QmFrontEnd*>(data)->escapePressed = true;
  return TRUE;
}

// Closing the window from its title bar stops the run as the button does.
gboolean OnProgressCloseRequest(GtkWindow*, gpointer data) {
  static_cast<QmFrontEnd*>(data)->stopFlag = 1;
  return TRUE;
}

void OnProgressDestroyed(QmFrontEnd* ui) { ui->progress = nullptr; }

// Puts the window's top-left corner on that of the program's window, kept on
// the screen. Windows can be moved on X11 only; elsewhere the window stands
// over its parent where the desktop puts it.
void PlaceOverProgramWindow(QmFrontEnd* ui) {
  GtkWindow* parent = ProgramWindow(ui);
  if (!parent) return;
  gtk_window_set_transient_for(ui->progress, parent);
#ifdef GDK_WINDOWING_X11
  GdkSurface* own = gtk_native_get_surface(GTK_NATIVE(ui->progress));
  GdkSurface* theirs = gtk_native_get_surface(GTK_NATIVE(parent));
  if (!own || !theirs || !GDK_IS_X11_SURFACE(own) || !GDK_IS_X11_SURFACE(theirs)) return;
  GdkDisplay* display = gdk_surface_get_display(own);
  Display* xdisplay = gdk_x11_display_get_xdisplay(display);
  Window child = 0;
  int x = 0, y = 0;
  Window root = DefaultRootWindow(xdisplay);
  XTranslateCoordinates(xdisplay, gdk_x11_surface_get_xid(theirs), root, 0, 0, &x, &y, &child);
  GdkRectangle area{0, 0, DisplayWidth(xdisplay, DefaultScreen(xdisplay)),
                    DisplayHeight(xdisplay, DefaultScreen(xdisplay))};
  if (GdkMonitor* monitor = gdk_display_get_monitor_at_surface(display, theirs))
    if (GDK_IS_X11_MONITOR(monitor)) gdk_x11_monitor_get_workarea(monitor, &area);
  Rect placed = PlaceOnParent({x, y, gdk_surface_get_width(theirs), gdk_surface_get_height(theirs)},
                              gdk_surface_get_width(own), gdk_surface_get_height(own),
                              {area.x, area.y, area.width, area.height});
  XMoveWindow(xdisplay, gdk_x11_surface_get_xid(own), placed.x, placed.y);
  XFlush(xdisplay);
#endif
}

void OpenProgress(QmFrontEnd* ui, int lineCount) {
  if (ui->progress) gtk_window_destroy(ui->progress);
  ui->stopFlag = 0;
  ui->escapePressed = false;
  ui->stageText.clear();
  ui->shownStage = kStageLabel.text;
  ui->shownFraction = -1;
  ui->barModel = ProgressBarModel{};

  GtkWindow* window = NewOwnWindow();
  ui->progress = window;
  g_signal_connect_swapped(window, "destroy", G_CALLBACK(OnProgressDestroyed), ui);
  gtk_window_set_title(window, kProgressTitle);
  gtk_window_set_resizable(window, FALSE);
  Rect size = ToPixels({0, 0, kTemplateWidth, kTemplateHeight});
  gtk_window_set_default_size(window, size.width, size.height);

  Rect bar = ToPixels(kProgressBar.units), status = ToPixels(kStatusLabel.units);
  Rect stage = ToPixels(kStageLabel.units), button = ToPixels(kStopButton.units);
  GtkWidget* column = gtk_box_new(GTK_ORIENTATION_VERTICAL, 0);
  gtk_widget_set_margin_start(column, bar.x);
  gtk_widget_set_margin_end(column, size.width - bar.x - bar.width);
  gtk_widget_set_margin_top(column, bar.y);
  gtk_widget_set_margin_bottom(column, size.height - button.y - button.height);

  ui->bar = GTK_PROGRESS_BAR(gtk_progress_bar_new());
  UseTemplateBarHeight(GTK_WIDGET(ui->bar), bar.height);
  SizeFromTemplate(GTK_WIDGET(ui->bar), kProgressBar);
  gtk_widget_set_valign(GTK_WIDGET(ui->bar), GTK_ALIGN_CENTER);
  gtk_box_append(GTK_BOX(column), GTK_WIDGET(ui->bar));

  GtkWidget* row = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, stage.x - status.x - status.width);
  gtk_widget_set_margin_top(row, status.y - bar.y - bar.height);
  GtkWidget* statusLabel = gtk_label_new(kStatusLabel.text);
  gtk_label_set_xalign(GTK_LABEL(statusLabel), 0);
  gtk_label_set_yalign(GTK_LABEL(statusLabel), 0);
  gtk_widget_set_valign(statusLabel, GTK_ALIGN_START);
  gtk_box_append(GTK_BOX(row), statusLabel);
  ui->stageLabel = GTK_LABEL(gtk_label_new(kStageLabel.text));
  gtk_label_set_wrap(ui->stageLabel, TRUE);
  gtk_label_set_max_width_chars(ui->stageLabel, 1);
  gtk_label_set_xalign(ui->stageLabel, 0);
  gtk_label_set_yalign(ui->stageLabel, 0);
  gtk_widget_set_hexpand(GTK_WIDGET(ui->stageLabel), TRUE);
  gtk_widget_set_size_request(GTK_WIDGET(ui->stageLabel), -1, stage.height);
  gtk_box_append(GTK_BOX(row), GTK_WIDGET(ui->stageLabel));
  gtk_box_append(GTK_BOX(column), row);

  GtkWidget* stop = gtk_button_new_with_label(kStopButton.text);
  SizeFromTemplate(stop, kStopButton);
  gtk_widget_set_margin_top(stop, button.y - stage.y - stage.height);
  g_signal_connect_swapped(stop, "clicked", G_CALLBACK(+[](QmFrontEnd* self) { self->stopFlag = 1; }), ui);
  gtk_box_append(GTK_BOX(column), stop);
  gtk_window_set_child(window, column);
  gtk_window_set_default_widget(window, stop);

  GtkEventController* keys = gtk_event_controller_key_new();
  gtk_event_controller_set_propagation_phase(keys, GTK_PHASE_CAPTURE);
  g_signal_connect(keys, "key-pressed", G_CALLBACK(OnProgressKey), ui);
  gtk_widget_add_controller(GTK_WIDGET(window), keys);
  g_signal_connect(window, "close-request", G_CALLBACK(OnProgressCloseRequest), ui);

  ui->barModel.SetRange(lineCount);
  gtk_window_present(window);
  // Placed once it is on the screen with its size; a moment at most.
  gint64 until = g_get_monotonic_time() + 500 * 1000;
  for (;;) {
    PumpMessages();
    GdkSurface* surface = gtk_native_get_surface(GTK_NATIVE(window));
    if ((surface && gdk_surface_get_mapped(surface) && gdk_surface_get_width(surface) > 1) ||
        g_get_monotonic_time() > until)
      break;
    g_usleep(1000);
  }
  PlaceOverProgramWindow(ui);
  PumpMessages();
}

void ShowStage(QmFrontEnd* ui) {
  if (!ui->progress || ui->stageText == ui->shownStage) return;
  gtk_label_set_text(ui->stageLabel, ui->stageText.c_str());
  ui->shownStage = ui->stageText;
}

void ShowBar(QmFrontEnd* ui) {
  double fraction = ui->barModel.Fraction();
  if (!ui->progress || fraction == ui->shownFraction) return;
  gtk_progress_bar_set_fraction(ui->bar, fraction);
  ui->shownFraction = fraction;
}

void SetStage(QmFrontEnd* ui, int stage) {
  if (stage >= 1 && stage <= 3) ui->stageText = quillmesh::StageText(stage);
  ShowStage(ui);
}

void SetRange(QmFrontEnd* ui, int high) {
  ui->barModel.SetRange(high);
  ShowBar(ui);
}

void CloseProgress(QmFrontEnd* ui) {
  if (!ui->progress) return;
  gtk_window_destroy(ui->progress);
  PumpMessages();
}

int Advance(QmFrontEnd* ui, int position) {
  PumpMessages();
  if (!ui->progress) return 0;
  bool escape = ui->escapePressed;
  ui->escapePressed = false;
  if (escape || ui->stopFlag) {
    CloseProgress(ui);
    return 0;
  }
  ui->barModel.SetPosition(position);
  ShowBar(ui);
  ShowStage(ui);
  return 1;
}

void Say(char* why, size_t size, const char* text) {
  if (why && size) std::snprintf(why, size, "%s", text);
}

QmFrontEnd* Open(char* why, size_t whySize) {
  // GTK belongs to the thread that runs the program's windows; a program
  // without any is taken to be the main thread's.
  if (syscall(SYS_gettid) != getpid()) {
    Say(why, whySize, "the desktop windows can be shown from the program's main thread only");
    return nullptr;
  }
  if (!gtk_is_initialized() && !gtk_init_check()) {
    Say(why, whySize, "no display could be opened");
    return nullptr;
  }
  if (!gdk_display_get_default()) {
    Say(why, whySize, "there is no display");
    return nullptr;
  }
  auto* ui = new QmFrontEnd;
  // Files chosen in the dialog go to the recently used list under a name;
  // a program without one gets ours, which the boxes don't show.
  static bool namedHere = false;
  if (!g_get_application_name()) {
    if (!g_get_prgname()) g_set_prgname("quillmesh");
    g_set_application_name("Quillmesh");
    namedHere = true;
  }
  if (!namedHere) ui->programName = g_get_application_name();
  ui->contextAcquired = g_main_context_acquire(nullptr);
  if (!ui->contextAcquired) {
    delete ui;
    Say(why, whySize, "another thread runs the program's windows");
    return nullptr;
  }
  return ui;
}

void Close(QmFrontEnd* ui) {
  if (!ui) return;
  CloseProgress(ui);
  if (ui->contextAcquired) g_main_context_release(nullptr);
  delete ui;
}

void ShowMessage(QmFrontEnd* ui, const char* text) { ShowBox(ui, text ? text : ""); }

constexpr QmFrontEndFunctions kFunctions{
    QM_FRONT_END_VERSION, Open, Close, ChooseInputFile, ShowMessage, OpenProgress,
    SetStage,             SetRange, Advance, CloseProgress,
};

}  // namespace

extern "C" __attribute__((visibility("default"))) const QmFrontEndFunctions* QmFrontEndFunctionsOf(void) {
  return &kFunctions;
}
