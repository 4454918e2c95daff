#include "worker/svg/svg_path_reach.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <string_view>

namespace norvex::engine {
namespace {

constexpr qsizetype kEnough = 4 << 20;
/// Of one path: some thousand of its points tell enough.
constexpr size_t kLongest = 64 << 10;

/// Numbers of one segment of a command; 0: it has none.
size_t numbersOf(char command) {
  switch (std::tolower(command)) {
    case 'm':
    case 'l':
    case 't':
      return 2;
    case 'q':
    case 's':
      return 4;
    case 'c':
      return 6;
    case 'a':
      return 7;
    case 'h':
    case 'v':
      return 1;
    default:
      return 0;
  }
}

/// The heights that the points of a path lie at.
class Heights {
 public:
  void command(char command) {
    command_ = command;
    at_ = 0;
  }

  void number(double value) {
    const size_t count = numbersOf(command_);
    if (count == 0) return;
    const char kind = char(std::tolower(command_));
    const bool isY = kind == 'v' || (kind == 'a' ? at_ == 6 : kind != 'h' && at_ % 2 == 1);
    const double y = value + (std::islower(command_) ? last_ : 0);
    if (isY) {
      least_ = isFirst_ ? y : std::min(least_, y);
      most_ = isFirst_ ? y : std::max(most_, y);
      isFirst_ = false;
    }
    at_ = (at_ + 1) % count;
    if (at_ == 0 && isY) last_ = y;
  }

  [[nodiscard]] double height() const { return most_ - least_; }

 private:
  char command_ = 0;
  size_t at_ = 0;
  double last_ = 0, least_ = 0, most_ = 0;
  bool isFirst_ = true;
};

double heightOf(std::string_view data) {
  Heights heights;
  for (const char *at = data.data(), *const end = at + data.size(); at < end;) {
    double value = 0;
    const auto [next, error] = std::from_chars(at, end, value);
    if (error == std::errc() && next != at) {
      heights.number(value);
      at = next;
      continue;
    }
    if (std::isalpha(static_cast<unsigned char>(*at))) heights.command(*at);
    ++at;
  }
  return heights.height();
}

}  // namespace

double meanPathHeight(const QByteArray& utf8) {
  const std::string_view text(utf8.constData(), size_t(std::min(utf8.size(), kEnough)));
  double sum = 0;
  qsizetype paths = 0, texts = 0;
  for (size_t at = text.find("<text"); at != text.npos; at = text.find("<text", at + 5)) ++texts;
  for (size_t at = text.find(" d="); at != text.npos; at = text.find(" d=", at + 3)) {
    if (at + 4 >= text.size()) break;
    const size_t end = text.find(text[at + 3], at + 4);
    if (end == text.npos) break;
    sum += heightOf(text.substr(at + 4, std::min(end - at - 4, kLongest)));
    ++paths;
  }
  return paths > texts ? sum / double(paths) : 0;
}

}  // namespace norvex::engine
