#include "ui/source/source_blocks.h"

#include <algorithm>

namespace norvex {

namespace {

bool endsLine(QChar c) {
  switch (c.unicode()) {
    case '\n':
    case '\r':
    case 0x2029:
    case 0xfdd0:
    case 0xfdd1:
      return true;
    default:
      return false;
  }
}

}  // namespace

SourceBlocks::SourceBlocks(QString text) : text_(std::move(text)) {
  qsizetype from = 0;
  const QChar* const units = text_.constData();
  const qsizetype size = text_.size();
  for (qsizetype at = 0; at < size; ++at) {
    if (!endsLine(units[at])) continue;
    addLine(from, at);
    if (units[at] == u'\r' && at + 1 < size && units[at + 1] == u'\n') ++at;
    from = at + 1;
  }
  addLine(from, size);
}

void SourceBlocks::addLine(qsizetype from, qsizetype to) {
  ++lines_;
  int line = lines_;
  do {
    qsizetype end = std::min<qsizetype>(to, from + longestBlock);
    if (end < to && text_.at(end).isLowSurrogate() && text_.at(end - 1).isHighSurrogate()) --end;
    const qsizetype shown = blocks_.isEmpty() ? 0 : blocks_.last().shown + blocks_.last().length + 1;
    blocks_.append({from, shown, static_cast<int>(end - from), line});
    line = 0;
    from = end;
  } while (from < to);
}

QStringView SourceBlocks::block(int block) const {
  return QStringView(text_).mid(start(block), blocks_.at(block).length);
}

int SourceBlocks::blockAt(qsizetype textPosition) const {
  const auto after =
      std::upper_bound(blocks_.cbegin(), blocks_.cend(), textPosition,
                       [](qsizetype position, const Block& block) { return position < block.start; });
  return std::max(0, static_cast<int>(after - blocks_.cbegin()) - 1);
}

qsizetype SourceBlocks::shownPosition(qsizetype textPosition) const {
  const Block& block = blocks_.at(blockAt(textPosition));
  return block.shown + std::clamp<qsizetype>(textPosition - block.start, 0, block.length);
}

qsizetype SourceBlocks::textPosition(qsizetype shownPosition) const {
  const auto after =
      std::upper_bound(blocks_.cbegin(), blocks_.cend(), shownPosition,
                       [](qsizetype position, const Block& block) { return position < block.shown; });
  const Block& block = blocks_.at(std::max<qsizetype>(0, after - blocks_.cbegin() - 1));
  return block.start + std::clamp<qsizetype>(shownPosition - block.shown, 0, block.length);
}

QString SourceBlocks::shown(int first, int end) const {
  QString all;
  for (int i = first; i < end; ++i) {
    if (i > first) all += u'\n';
    all += block(i);
  }
  return all;
}

QString SourceBlocks::copied(qsizetype from, qsizetype to) const {
  QString part = text_.mid(from, std::max<qsizetype>(0, to - from));
  part.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  part.replace(u'\r', u'\n');
  return part;
}

}  // namespace norvex
