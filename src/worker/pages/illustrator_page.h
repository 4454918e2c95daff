// The page that Illustrator writes in place of an artwork, told from others without drawing it.
#pragma once

#include <QString>

#include "worker/pdf/pdf_file.h"

namespace norvex::engine {

/// True if the only page is Illustrator's and so short that it may be a notice: see illustrator_notice.h.
[[nodiscard]] bool mayHoldIllustratorNotice(const PdfFile& file);

/// The warning about such a file.
[[nodiscard]] QString illustratorNoticeSentence();

}  // namespace norvex::engine
