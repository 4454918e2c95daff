#include "metadata/eps_lines.h"

namespace norvex {

bool beginsLine(QByteArrayView program, qsizetype at) {
  return at == 0 || program[at - 1] == '\n' || program[at - 1] == '\r';
}

qsizetype lineEndOf(QByteArrayView program, qsizetype at) {
  while (at < program.size() && program[at] != '\n' && program[at] != '\r') ++at;
  return at;
}

qsizetype lineBeginningWith(QByteArrayView program, QByteArrayView keyword, qsizetype from) {
  for (qsizetype at = program.indexOf(keyword, from); at >= 0; at = program.indexOf(keyword, at + 1))
    if (beginsLine(program, at)) return at;
  return -1;
}

}  // namespace norvex
