// A document as its reader has chosen to see it.
#include "picture/chosen_document.h"

#include "kit/test_main.h"
#include "picture/process/memory_picture_service.h"
#include "types/uniform_type.h"

using namespace norvex;

namespace {

const QByteArray kPdf("%PDF-1.7\n");

PictureSource source(const QByteArray& bytes, const QString& type) {
  return {bytes, type, {}};
}
PictureSource pdf() {
  return source(kPdf, UTTypePDF().identifier());
}

ReaderChoices opened(const QString& password) {
  ReaderChoices choices;
  choices.password = password;
  return choices;
}

}  // namespace

class ChosenDocumentTest : public QObject {
  Q_OBJECT

  int chosen_ = 0;
  MemoryPictureService service_;

 private slots:
  void init() {
    chosen_ = 0;
    service_.setChoose([this](const QByteArray& pdf, const ReaderChoices& choices) -> Result<PictureBytes> {
      ++chosen_;
      if (choices.password == u"wrong") return Error{ErrorKind::Encrypted, QStringLiteral("it is wrong")};
      return PictureBytes{pdf + "chosen", {}};
    });
  }

  void aPdfIsThatOnceTheChoicesAreMade() {
    const auto made = documentAsChosen(service_, pdf(), opened("right"));
    QVERIFY(made.ok());
    QCOMPARE(made->bytes, kPdf + "chosen");
    ReaderChoices layers;
    layers.layers = {{}};
    QCOMPARE(documentAsChosen(service_, pdf(), layers)->bytes, kPdf + "chosen");
    QCOMPARE(documentAsChosen(service_, pdf(), opened("wrong")).error().kind, ErrorKind::Encrypted);
    QCOMPARE(chosen_, 3);
  }

  void withoutAChoiceEveryDocumentIsAsItIs() {
    QCOMPARE(documentAsChosen(service_, pdf(), {})->bytes, kPdf);
    QCOMPARE(chosen_, 0);
  }

  void nothingIsChosenOfADocumentOfAnotherKind() {
    for (const QString& type : {NorvexEPSType, UTTypeSVG().identifier(), QStringLiteral("public.data")})
      QCOMPARE(documentAsChosen(service_, source("bytes", type), opened("right"))->bytes, "bytes");
    QCOMPARE(chosen_, 0);
  }
};

NORVEX_TEST(ChosenDocumentTest)
#include "chosen_document_test.moc"
