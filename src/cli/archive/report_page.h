// A state as a page for people.
#pragma once

#include <QByteArray>
#include <QList>

#include "cli/archive/contact_sheet.h"
#include "cli/archive/state/state_summary.h"

namespace norvex {

/// What every page begins with, by which it is known again.
inline constexpr char reportPageBegin[] =
    "<!DOCTYPE html>\n<html lang=en><meta charset=utf-8><meta name=generator content=\"Norvex\"><title>";

/// HTML in UTF-8 that needs no other file: how far the state is, what failed by its causes, and the pictures
/// of which most became an image, before and after. Nothing in names and sentences is structure of the page.
[[nodiscard]] QByteArray reportPage(const QByteArray& state, const StateSummary& summary,
                                    const QList<ChangedPicture>& changed);

}  // namespace norvex
