#include "ui/controls/number_matrix.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

#include "base/localized_string.h"
#include "ui/controls/value_copying.h"
#include "ui/style/quiet_text.h"

namespace norvex {

namespace {

constexpr const char* kNames[2][2] = {
    {QT_TRANSLATE_NOOP("Localizable", "X"), QT_TRANSLATE_NOOP("Localizable", "Width")},
    {QT_TRANSLATE_NOOP("Localizable", "Y"), QT_TRANSLATE_NOOP("Localizable", "Height")}};
constexpr const char* kTitles[2][2] = {{"x", "w"}, {"y", "h"}};

}  // namespace

NumberMatrix::NumberMatrix(QWidget* parent) : QWidget(parent) {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(10, 6, 10, 6);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(2);
  for (int row = 0; row < 2; ++row) {
    for (int column = 0; column < 2; ++column) {
      auto* title = new QLabel(QString::fromLatin1(kTitles[row][column]), this);
      auto* cell = new QLineEdit(this);
      cell->setReadOnly(true);
      cell->setFrame(false);
      cell->setStyleSheet(QStringLiteral("QLineEdit { background: transparent; border: none; }"));
      cell->setAccessibleName(localizedString(kNames[row][column]));
      cell->setMinimumWidth(48);
      makeValueCopyable(*cell);
      makeQuiet(*title);
      grid->addWidget(title, row, 2 * column);
      grid->addWidget(cell, row, 2 * column + 1);
      cells_[static_cast<size_t>(row)][static_cast<size_t>(column)] = cell;
    }
  }
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

/// A pale colour on a dark ground would be the brightest spot of the window.
QColor NumberMatrix::ground() const {
  const QColor given = background_.isValid() ? background_ : palette().color(QPalette::Base);
  if (!isDarkScheme(palette()) || given.lightnessF() < 0.5) return given;
  return QColor::fromHslF(given.hslHueF(), std::min(0.25F, given.hslSaturationF()), 0.16F);
}

QLineEdit* NumberMatrix::cellAtRow(int row, int column) const {
  return cells_.at(static_cast<size_t>(row)).at(static_cast<size_t>(column));
}

void NumberMatrix::setRect(const QRectF& rect) {
  setFloat(0, 0, static_cast<float>(rect.x()));
  setFloat(1, 0, static_cast<float>(rect.y()));
  setFloat(0, 1, static_cast<float>(rect.width()));
  setFloat(1, 1, static_cast<float>(rect.height()));
}

void NumberMatrix::setText(int row, int column, const QString& text) {
  QLineEdit* cell = cellAtRow(row, column);
  cell->setText(text);
  cell->setCursorPosition(0);
}

void NumberMatrix::setFloat(int row, int column, float value) {
  QString text = QString::number(static_cast<double>(value), 'g', 9);
  for (int digits = 6; digits < 9; ++digits) {
    const QString shorter = QString::number(static_cast<double>(value), 'g', digits);
    if (shorter.toFloat() == value) {
      text = shorter;
      break;
    }
  }
  setText(row, column, text.replace(QChar('.'), QLocale().decimalPoint()));
}

void NumberMatrix::setBackgroundColor(const QColor& color) {
  background_ = color;
  update();
}

void NumberMatrix::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QColor line = palette().color(QPalette::WindowText);
  line.setAlphaF(0.15f);
  painter.setPen(line);
  painter.setBrush(ground());
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
}

}  // namespace norvex
