#include "worker/web_fonts/type2_outline.h"

#include <cmath>

namespace norvex::engine {
namespace {

enum Operator : char { Lines = 5, Curves = 8, End = 14, Move = 21 };

constexpr double kFarthest = 16000;  // the way from one end to the other still has 16 bits
constexpr size_t kMostNumbers = 48;  // that an operator finds on its stack

class Program {
 public:
  /// The width goes in front of the numbers of the first operator.
  explicit Program(int width) { putType2Number(bytes_, width); }

  void move(QPointF to) {
    begin(Move);
    add(to);
  }
  void line(QPointF to) {
    begin(Lines, 2);
    add(to);
  }
  void curve(QPointF first, QPointF second, QPointF to) {
    begin(Curves, 6);
    for (const QPointF& point : {first, second, to}) add(point);
  }
  [[nodiscard]] QPointF at() const { return at_; }
  [[nodiscard]] std::optional<QByteArray> end() {
    flush();
    bytes_.append(End);
    return inRange_ ? std::optional(bytes_) : std::nullopt;
  }

 private:
  /// Steps of a kind share an operator as long as there is room for `more` numbers.
  void begin(Operator next, size_t more = kMostNumbers) {
    if (next != operator_ || numbers_ + more > kMostNumbers) flush();
    operator_ = next;
  }
  void flush() {
    if (numbers_ > 0) bytes_.append(operator_);
    numbers_ = 0;
  }
  void add(QPointF to) {
    inRange_ = inRange_ && std::abs(to.x()) <= kFarthest && std::abs(to.y()) <= kFarthest;
    if (!inRange_) return;
    const int x = int(std::lround(to.x())), y = int(std::lround(to.y()));
    putType2Number(bytes_, x - x_);
    putType2Number(bytes_, y - y_);
    numbers_ += 2;
    x_ = x, y_ = y, at_ = to;
  }

  QByteArray bytes_;
  Operator operator_ = Move;
  size_t numbers_ = 0;
  int x_ = 0, y_ = 0;
  QPointF at_;
  bool inRange_ = true;
};

}  // namespace

void putType2Number(QByteArray& program, int value) {
  if (value >= -107 && value <= 107) {
    program.append(char(value + 139));
  } else if (std::abs(value) <= 1131) {
    const int beyond = std::abs(value) - 108;
    program.append(char((value > 0 ? 247 : 251) + beyond / 256)).append(char(beyond % 256));
  } else {
    program.append(char(28)).append(char(value >> 8)).append(char(value));
  }
}

std::optional<QByteArray> type2Outline(const GlyphOutline& glyph) {
  if (!(std::abs(glyph.advance) <= kFarthest)) return std::nullopt;
  Program program(int(std::lround(glyph.advance)));
  for (const OutlineStep& step : glyph.steps) {
    const auto& [a, b, c] = step.points;
    switch (step.kind) {
      case OutlineStep::Move:
        program.move(a);
        break;
      case OutlineStep::Line:
        program.line(a);
        break;
      case OutlineStep::Quadratic:
        program.curve(program.at() + (a - program.at()) * 2 / 3, b + (a - b) * 2 / 3, b);
        break;
      case OutlineStep::Cubic:
        program.curve(a, b, c);
        break;
    }
  }
  return program.end();
}

}  // namespace norvex::engine
