/* The interface between libquillmesh and a front-end library that it loads
 * at run time (the desktop front end, libquillmesh_gtk). Plain C, so the
 * front end links nothing of the engine. */
#ifndef QUILLMESH_FRONT_END_H
#define QUILLMESH_FRONT_END_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

#define QM_FRONT_END_VERSION 1

typedef struct QmFrontEnd QmFrontEnd;

typedef struct QmFrontEndFunctions {
  int version; /* QM_FRONT_END_VERSION */
  /* Makes a front end for one call; NULL when it cannot be used here (no
   * display, not the thread of the program's windows), with the reason in
   * why (at most whySize bytes, NUL-terminated). */
  QmFrontEnd* (*open)(char* why, size_t whySize);
  /* Closes what is still open and frees the front end. */
  void (*close)(QmFrontEnd* ui);
  /* The file dialog with the catalogue's filter text. Returns 1 and a path
   * that the caller frees with free(), or 0 when left without a file. */
  int (*choose_input_file)(QmFrontEnd* ui, const char* filter, char** path);
  /* A modal box with OK alone; returns once it is closed. */
  void (*show_message)(QmFrontEnd* ui, const char* text);
  void (*open_progress)(QmFrontEnd* ui, int lineCount);
  void (*set_stage)(QmFrontEnd* ui, int stage);
  void (*set_range)(QmFrontEnd* ui, int high);
  /* Returns 1 to go on, 0 when the run is to stop (the window is gone). */
  int (*advance)(QmFrontEnd* ui, int position);
  void (*close_progress)(QmFrontEnd* ui);
} QmFrontEndFunctions;

/* The one symbol a front-end library exports. */
typedef const QmFrontEndFunctions* (*QmFrontEndEntry)(void);
#define QM_FRONT_END_ENTRY "QmFrontEndFunctionsOf"

#ifdef __cplusplus
}
#endif

#endif
