// The names under which facts of an SVG document are asked for and told.
#pragma once

namespace norvex {

inline constexpr char ZyWebViewDescKey[] = "ZyWebViewDesc";
inline constexpr char ZyWebViewTitleKey[] = "ZyWebViewTitle";
inline constexpr char ZyWebViewEncodingKey[] = "ZyWebViewEncoding";
inline constexpr char ZyWebViewEncodingNumberKey[] = "ZyWebViewEncodingNumber";
inline constexpr char ZyWebViewFixedRatioXKey[] = "ZyWebViewFixedRatioX";
inline constexpr char ZyWebViewFixedRatioYKey[] = "ZyWebViewFixedRatioY";
inline constexpr char ZyWebViewPDFImageRepKey[] = "ZyWebViewPDFImageRep";
inline constexpr char ZyWebViewFileURLKey[] = "ZyWebViewFileURL";
inline constexpr char PDFImageRepDidLoadResultKey[] = "PDFImageRepDidLoadResult";
inline constexpr char PDFImageRepDidLoadErrorKey[] = "PDFImageRepDidLoadError";
inline constexpr char ZyWebViewSVGZExtension[] = "svgz";
inline constexpr char ZySVGPboardType[] = "public.svg-image";
inline constexpr char ZySVGDocumentTypeName[] = "public.svg-image";

}  // namespace norvex
