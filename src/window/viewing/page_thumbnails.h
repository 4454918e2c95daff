// Thumbnails of a document's pages, made when they are looked at.
#pragma once

#include <QObject>

#include <memory>

#include "base/cancel_token.h"
#include "picture/pdf_image_rep.h"

namespace norvex {

class PageStrip;

/// Fills a strip, one page after the other, those that can be seen first, and only while the strip can be
/// seen. The strip outlives it. Main thread.
class PageThumbnails final : public QObject {
  Q_OBJECT
 public:
  PageThumbnails(PageStrip& strip, QObject* parent);
  ~PageThumbnails() override;

  /// Any page of the document; null: of none. Begins anew with another document.
  void setDocument(const std::shared_ptr<NSPDFImageRep>& page);

 private:
  void makeNext();

  PageStrip& strip_;
  std::shared_ptr<NSPDFImageRep> document_;
  CancelToken cancel_;  ///< of what is made for this document
  bool making_ = false;
};

}  // namespace norvex
