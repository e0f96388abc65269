/* The C entry points of libquillmesh. */
#ifndef QUILLMESH_CONVERT_H
#define QUILLMESH_CONVERT_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define QM_EXPORT __attribute__((visibility("default")))
#else
#define QM_EXPORT
#endif

/* The host's text: a heap string owned by the QmText.
 * Start it as QM_TEXT_INIT (or all zero) and release it with QmTextFree.
 * text is NULL or NUL-terminated; length does not count the NUL. */
typedef struct QmText {
  char* text;
  size_t length;
} QmText;

#define QM_TEXT_INIT {NULL, 0}

/* Releases the text's storage and leaves it empty. */
QM_EXPORT void QmTextFree(QmText* text);

/* Asks for an s2k file, converts it and writes the .tvt file beside it.
 * Returns 0 when the conversion ran to its end, 1 when the user gave up,
 * -1 when it failed.
 * The windows are the desktop's when a display is there and the desktop front
 * end (libquillmesh_gtk.so beside this library) can be used from this thread,
 * else the terminal's; QUILLMESH_UI=terminal or QUILLMESH_UI=desktop in the
 * environment forces one. The choice is made at each call. */
QM_EXPORT int ConvertFile(void);

/* As ConvertFile. On 0, *outputPath is replaced by the path of the .tvt
 * file (its old storage is released); on any other code it is left as it
 * was. outputPath must not be NULL. */
QM_EXPORT int ConvertFile2(QmText* outputPath);

#ifdef __cplusplus
}
#endif

#endif
