// Pages as forms, and pages made of forms.
#pragma once

#include <QByteArray>
#include <QRectF>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <initializer_list>
#include <string>
#include <utility>

namespace norvex::engine {

// Both throw as qpdf does.

/// The page's contents as a form that shows `box`, in the page's own user space. Contents of one stream keep
/// their compression. The page's transparency group is not the form's: it stays the page's own.
[[nodiscard]] QPDFObjectHandle pageAsForm(QPDF& qpdf, QPDFObjectHandle page, const QRectF& box);

/// A new page, not yet in the page tree: width and height in points, `contents` draws the forms by their
/// names
/// ("/Picture"); those that are no streams are left out.
[[nodiscard]] QPDFObjectHandle pageOfForms(
    QPDF& qpdf, double width, double height,
    std::initializer_list<std::pair<std::string, QPDFObjectHandle>> forms, const QByteArray& contents);

}  // namespace norvex::engine
