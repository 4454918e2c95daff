// A page as its inks make it, put together from the plates.
#pragma once

#include <QImage>
#include <QList>
#include <QPoint>

#include "base/cancel_token.h"
#include "protocol/page_inks.h"

namespace norvex {

/// Ink is counted in percent of one full ink: four of them are 400.
struct InkChoice {
  QList<bool> shown;     ///< one for each ink
  bool isPlate = false;  ///< the ink's amount as grey, in place of the inks' own colours
  double limit = 0;      ///< where all inks of the page together are more, that is shown in red; 0: nowhere
};

/// A choice in which every ink of the page is shown.
[[nodiscard]] InkChoice everyInk(const PageInks& page);

/// RGB32, a pixel for each of the plates'. Null when it was cancelled. Any thread.
[[nodiscard]] QImage inkImage(const PageInks& page, const InkChoice& choice, const CancelToken& cancel = {});

/// Percent of each ink at a pixel; empty outside.
[[nodiscard]] QList<double> inksAt(const PageInks& page, QPoint pixel);

/// The most ink that any pixel has, percent.
[[nodiscard]] double mostInk(const PageInks& page);

/// 0 … 1: pixels with more ink than the limit, percent.
[[nodiscard]] double shareAbove(const PageInks& page, double limit);

}  // namespace norvex
