/* A C host: calls both exports through the shared library. The "file dialog"
 * reads the path from standard input; an empty answer or its end is Cancel. */
#include <stdio.h>
#include <string.h>

#include "quillmesh/convert.h"

int main(void) {
  QmText path = QM_TEXT_INIT;
  int code = ConvertFile2(&path);
  printf("ConvertFile2 %d %s\n", code, path.text ? path.text : "(none)");
  code = ConvertFile2(&path); /* an empty answer: the path stays */
  printf("ConvertFile2 %d %s\n", code, path.text ? path.text : "(none)");
  QmTextFree(&path);
  code = ConvertFile(); /* standard input is at its end now */
  printf("ConvertFile %d\n", code);
  return 0;
}
