#pragma once

#include "core/backup/backup.h"
#include "core/backup/clsHuffman.h"

namespace tallymere {

/// What ends a compression on request.
struct Stopped {};

inline clsHuffman Huffman_With(const Percent& percent) {
  clsHuffman huffman;
  if (percent)
    huffman.Progress = [percent](int done) {
      if (!percent(done)) throw Stopped{};
    };
  return huffman;
}

}  // namespace tallymere
