#include "worker/pages/shared_streams.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <qpdf/Buffer.hh>
#include <qpdf/QPDFObjGen.hh>
#include <qpdf/QPDFObjectHandle.hh>

#include <map>
#include <string>

namespace norvex::engine {
namespace {

/// The others' numbers, and the stream that stands in for them.
using Standing = std::map<QPDFObjGen, QPDFObjectHandle>;

/// Forms refer to fonts, and other forms to them: each round finds those whose own references became equal.
constexpr int kRounds = 4;

QByteArray fingerprintOf(QPDFObjectHandle stream) {
  const std::string dictionary = stream.getDict().unparse();
  const auto data = stream.getRawStreamData();
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QByteArrayView(dictionary.data(), qsizetype(dictionary.size())));
  hash.addData(QByteArrayView(data->getBuffer(), qsizetype(data->getSize())));
  return hash.result();
}

Standing equalStreams(QPDF& qpdf) {
  std::map<QByteArray, QPDFObjectHandle> first;
  Standing standing;
  for (QPDFObjectHandle& object : qpdf.getAllObjects()) {
    if (!object.isStream()) continue;
    const auto [known, isNew] = first.try_emplace(fingerprintOf(object), object);
    if (!isNew) standing.emplace(object.getObjGen(), known->second);
  }
  return standing;
}

/// In what `value` holds itself; true if something refers to another object now.
bool redirect(QPDFObjectHandle value, const Standing& standing) {
  bool changed = false;
  const auto follow = [&](QPDFObjectHandle held, const auto& replace) {
    if (!held.isIndirect()) {
      changed |= redirect(held, standing);
    } else if (const auto found = standing.find(held.getObjGen()); found != standing.end()) {
      replace(found->second);
      changed = true;
    }
  };
  if (value.isStream()) value = value.getDict();
  if (value.isDictionary()) {
    for (const std::string& key : value.getKeys())
      follow(value.getKey(key), [&](const QPDFObjectHandle& other) { value.replaceKey(key, other); });
  } else if (value.isArray()) {
    for (int i = 0; i < value.getArrayNItems(); ++i)
      follow(value.getArrayItem(i), [&](const QPDFObjectHandle& other) { value.setArrayItem(i, other); });
  }
  return changed;
}

}  // namespace

void shareEqualStreams(QPDF& qpdf) {
  for (int round = 0; round < kRounds; ++round) {
    const Standing standing = equalStreams(qpdf);
    if (standing.empty()) return;
    bool changed = false;
    for (const QPDFObjectHandle& object : qpdf.getAllObjects()) changed |= redirect(object, standing);
    if (!changed) return;
  }
}

}  // namespace norvex::engine
