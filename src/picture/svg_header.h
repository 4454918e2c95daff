// The header dictionary of an SVG document.
#pragma once

#include <QColorSpace>

#include <optional>

#include "base/result.h"
#include "metadata/header_dictionary.h"
#include "protocol/worker_protocol.h"

namespace norvex {

/// Description, Title, Encoding, EncodingNumber and the two fixed-ratio keys, each only when the document
/// supplies it; ColorSpace always: the document's own or sRGB. Facts that could not be had give ColorSpace
/// alone. Thread-safe.
[[nodiscard]] HeaderDictionary svgHeader(const Result<PictureFacts>& facts,
                                         const std::optional<QColorSpace>& colorSpace = {});

}  // namespace norvex
