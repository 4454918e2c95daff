// The seam before the clipboard: so that copying is tested without a display, and so that what is offered
// stands in one place.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace norvex {

/// One thing on a pasteboard in several formats, best first. A value.
class NSPasteboardItem {
 public:
  struct Representation {
    QString type;  ///< a type identifier ("com.adobe.pdf")
    QByteArray data;
  };

  /// Adds a format, or replaces the bytes of one that is there.
  void setData(const QByteArray& data, const QString& forType) { put(representations_, data, forType); }
  [[nodiscard]] QStringList types() const {
    QStringList types;
    for (const Representation& each : representations_) types << each.type;
    return types;
  }
  /// Empty when the item has no such format.
  [[nodiscard]] QByteArray dataForType(const QString& type) const {
    for (const Representation& each : representations_)
      if (each.type == type) return each.data;
    return {};
  }
  [[nodiscard]] const QList<Representation>& representations() const { return representations_; }

  /// A format for programs that take none of the others. It is not one of types(): an item of such formats
  /// alone has nothing to say.
  void setFallback(const QByteArray& data, const QString& forType) { put(fallbacks_, data, forType); }
  [[nodiscard]] const QList<Representation>& fallbacks() const { return fallbacks_; }

 private:
  static void put(QList<Representation>& list, const QByteArray& data, const QString& type) {
    for (Representation& each : list) {
      if (each.type != type) continue;
      each.data = data;
      return;
    }
    list.append({type, data});
  }

  QList<Representation> representations_, fallbacks_;
};

/// The clipboard that all programs share. Main thread only.
class NSPasteboard {
 public:
  virtual ~NSPasteboard() = default;

  /// Takes away what is there. Always followed by writeObjects().
  virtual void clearContents() = 0;
  /// False: the clipboard could not be had, and nothing was written.
  virtual bool writeObjects(const QList<NSPasteboardItem>& objects) = 0;
};

}  // namespace norvex
