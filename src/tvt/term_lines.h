// The list layout shared by *SFUNCTION and *LOADCOMB: four items on the first
// line, three on each one after, a comma between items of a line.
#pragma once

#include <cstddef>

#include "frame/converter.h"

/// Calls writeItem(k) for k from 0 to count - 1; after item k writes "\n\t\t"
/// when k is at least 1 and a multiple of 3, else "," unless k is the last.
template <class WriteItem>
void WriteTermLines(CS2kConverter& engine, std::size_t count, WriteItem writeItem) {
  for (std::size_t k = 0; k < count; ++k) {
    writeItem(k);
    if (k >= 1 && k % 3 == 0)
      engine.WriteText("\n\t\t");
    else if (k + 1 != count)
      engine.WriteText(",");
  }
}
