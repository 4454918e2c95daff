#include "worker/postscript/transfer_functions.h"

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "worker/pdf/pdf_file.h"

namespace norvex::engine {
namespace {

/// Of inks, with the functions that give the colours of their tints.
using Tints = std::set<std::string>;

bool isFunction(QPDFObjectHandle transfer) {
  if (!transfer.isArray()) return !transfer.isNull() && !transfer.isName();
  const std::vector<QPDFObjectHandle> each = transfer.getArrayAsVector();
  return std::any_of(each.begin(), each.end(), [](const QPDFObjectHandle& one) { return isFunction(one); });
}

/// All that it consists of, without the numbers of objects.
std::string textOf(QPDFObjectHandle function) {
  if (!function.isStream()) return function.unparseResolved();
  QPDFObjectHandle dictionary = function.getDict();
  std::string text;
  for (const std::string& key : dictionary.getKeys())
    if (key != "/Length") text += key + ' ' + dictionary.getKey(key).unparseResolved() + ' ';
  const auto data = function.getRawStreamData();
  return text.append(reinterpret_cast<const char*>(data->getBuffer()), data->getSize());
}

void collect(QPDFObjectHandle space, Tints& tints) {
  if (!space.isArray()) return;
  std::vector<QPDFObjectHandle> parts = space.getArrayAsVector();
  const bool isOfInks =
      parts.size() >= 4 && (parts[0].isNameAndEquals("/Separation") || parts[0].isNameAndEquals("/DeviceN"));
  if (isOfInks) tints.insert(parts[1].unparseResolved() + ' ' + textOf(parts[3]));
  for (QPDFObjectHandle& part : parts)
    if (!part.isIndirect()) collect(part, tints);
}

Result<Tints> tintsOf(const QByteArray& pdf) {
  return guarded([&]() -> Result<Tints> {
    Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
    if (!file) return file.error();
    Tints tints;
    for (const QPDFObjectHandle& object : (*file)->qpdf().getAllObjects()) collect(object, tints);
    return tints;
  });
}

}  // namespace

bool hasTransferFunctions(const QByteArray& pdf) {
  if (!pdf.contains("/TR")) return false;
  const Result<bool> found = guarded([&]() -> Result<bool> {
    Result<std::unique_ptr<PdfFile>> file = PdfFile::open(pdf);
    if (!file) return file.error();
    for (QPDFObjectHandle object : (*file)->qpdf().getAllObjects())
      if (object.isDictionary() && (isFunction(object.getKey("/TR")) || isFunction(object.getKey("/TR2"))))
        return true;
    return false;
  });
  return found && *found;
}

bool haveSameTints(const QByteArray& pdf, const QByteArray& other) {
  const Result<Tints> first = tintsOf(pdf), second = tintsOf(other);
  return first && second && *first == *second;
}

}  // namespace norvex::engine
