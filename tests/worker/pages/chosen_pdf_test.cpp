// PDFs as their readers chose to see them: opened by a password, with other layers.
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include <QImage>

#include <optional>

#include "kit/test_main.h"
#include "protocol/every_page.h"
#include "protocol/limits.h"
#include "worker/engine/engine.h"
#include "worker/kit/made_pdf.h"
#include "worker/pages/chosen_pdf.h"
#include "worker/pages/pdf_engine.h"
#include "worker/pages/pdf_layers.h"

using namespace norvex;
using namespace norvex::engine;
using kit::madePdf;
using kit::onePage;
using kit::stream;

namespace {

enum class Allows { Everything, Nothing };

QByteArray written(QPDFWriter& writer) {
  writer.write();
  const auto buffer = writer.getBufferSharedPointer();
  return QByteArray(reinterpret_cast<const char*>(buffer->getBuffer()), qsizetype(buffer->getSize()));
}

QByteArray encrypted(const QByteArray& pdf, const char* user, Allows allows = Allows::Everything) {
  QPDF qpdf;
  qpdf.processMemoryFile("test", pdf.constData(), size_t(pdf.size()));
  QPDFWriter writer(qpdf);
  writer.setOutputMemory();
  const bool all = allows == Allows::Everything;
  writer.setR6EncryptionParameters(user, "owner", true, all, all, all, all, all,
                                   all ? qpdf_r3p_full : qpdf_r3p_none, true);
  return written(writer);
}

/// As documents were protected before PDF 2.0: the password is a byte a letter.
QByteArray encryptedOfOld(const QByteArray& pdf, const char* user) {
  QPDF qpdf;
  qpdf.processMemoryFile("test", pdf.constData(), size_t(pdf.size()));
  QPDFWriter writer(qpdf);
  writer.setOutputMemory();
  writer.setR4EncryptionParametersInsecure(user, "owner", true, true, true, true, true, true, qpdf_r3p_full,
                                           true, true);
  return written(writer);
}

/// A page of 30 × 10 points: objects 5, 6 and 7 are layers called Red, Green and Blue, each of which fills a
/// third of it. `standard`: the default configuration.
QByteArray layered(const QByteArray& standard) {
  return madePdf(
      {"<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [5 0 R 6 0 R 7 0 R] /D << " + standard +
           " >> >> >>",
       "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
       "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 30 10] /Contents 4 0 R /Resources << /Properties << /R 5 "
       "0 "
       "R /G 6 0 R /B 7 0 R >> >> >>",
       stream("/OC /R BDC 1 0 0 rg 0 0 10 10 re f EMC /OC /G BDC 0 1 0 rg 10 0 10 10 re f EMC /OC /B BDC 0 0 "
              "1 rg 20 0 10 10 re f EMC"),
       "<< /Type /OCG /Name (Red) >>", "<< /Type /OCG /Name (Green) >>", "<< /Type /OCG /Name (Blue) >>"});
}

struct Opened {
  EngineContext context;
  std::unique_ptr<DocumentEngine> engine;
  std::optional<Error> error;
};

std::unique_ptr<Opened> open(const QByteArray& pdf, const QString& password = {},
                             const QList<PictureLayer>& layers = {}) {
  auto opened = std::make_unique<Opened>();
  opened->context.password = password;
  opened->context.layers = layers;
  auto engine = openPdf(pdf, opened->context);
  if (engine)
    opened->engine = std::move(*engine);
  else
    opened->error = engine.error();
  return opened;
}

/// "RGB" for each third that is painted, "-" for one that is not.
QString painted(DocumentEngine& engine) {
  RenderRequest request;
  request.pixelSize = QSize(30, 10);
  request.pictureToDevice = AffineTransform(1, 0, 0, -1, 0, 10);
  const Result<Bitmap> drawn = engine.render(request);
  if (!drawn) return drawn.error().message;
  QString seen;
  for (const int x : {5, 15, 25})
    seen += drawn->row(5)[x] >> 24 == 0 ? QStringLiteral("-") : QString(QLatin1Char("RGB"[x / 10]));
  return seen;
}

QString shownLayers(DocumentEngine& engine) {
  QString text;
  const Result<PictureFacts> facts = engine.facts();
  for (const PictureLayer& layer : facts.value().layers)
    text += layer.name.left(1) + (layer.shown ? u'+' : u'-');
  return text;
}

}  // namespace

class ChosenPdfTest : public QObject {
  Q_OBJECT
 private slots:
  // ---- passwords

  void aPasswordOpensAndEverythingIsThere() {
    const QByteArray pdf = encrypted(onePage("1 0 0 rg 0 0 30 10 re f", "/MediaBox [0 0 30 10]"), "geheim");
    const auto opened = open(pdf, "geheim");
    QVERIFY2(opened->engine, opened->error ? qPrintable(opened->error->message) : "");
    QCOMPARE(opened->engine->facts()->pageBounds, QList<QRectF>{QRectF(0, 0, 30, 10)});
    QCOMPARE(painted(*opened->engine), QString("RGB"));
    for (const VectorFormat format : {VectorFormat::Pdf, VectorFormat::Eps, VectorFormat::Svg}) {
      const auto part = opened->engine->compose({format, 0, QRectF(-15, -5, 30, 10), 0});
      QVERIFY2(part.ok(), part ? "" : qPrintable(part.error().message));
    }
    QVERIFY(opened->engine->examine({}).ok());
  }

  void theOwnersPasswordOpensToo() { QVERIFY(open(encrypted(onePage(""), "geheim"), "owner")->engine); }

  void aWrongPasswordIsToldAsSuch() {
    const auto opened = open(encrypted(onePage(""), "geheim"), "falsch");
    QVERIFY(opened->error);
    QCOMPARE(opened->error->kind, ErrorKind::Encrypted);
    QCOMPARE(opened->error->message, QString("the password is wrong"));
  }

  void aPasswordOfAnyLettersIsTriedAsBothStandardsWriteIt() {
    const QString word = QString::fromUtf8("Schlüssel");
    QVERIFY(open(encrypted(onePage(""), word.toUtf8().constData()), word)->engine);
    QVERIFY(open(encryptedOfOld(onePage(""), word.toLatin1().constData()), word)->engine);
  }

  void aPasswordThatNobodyNeedsChangesNothing() {
    const QByteArray pdf = onePage("0 0 9 9 re f");
    const auto chosen = chosenPdf(pdf, "geheim", {});
    QVERIFY(chosen.ok());
    QCOMPARE(chosen->bytes, pdf);
    QCOMPARE(chosen->lostProtection, QString());
  }

  void whatIsHandedOnNeedsNoPasswordAndSaysSo() {
    const auto opened = open(encrypted(onePage("0 0 9 9 re f"), "geheim"), "geheim");
    const auto whole = opened->engine->pdf({everyPage, std::nullopt, true});
    QVERIFY(whole.ok());
    QVERIFY(open(whole->bytes)->engine);
    QCOMPARE(whole->report.warnings,
             QStringList{"the document is protected by encryption, and what is made of it is not"});
  }

  void permissionsThatAreLostAreNamed() {
    const auto opened = open(encrypted(onePage("0 0 9 9 re f"), "", Allows::Nothing));
    QVERIFY(opened->engine);
    const auto part = opened->engine->compose({VectorFormat::Pdf, 0, QRectF(-5, -5, 10, 10), 0});
    QVERIFY(part.ok());
    QCOMPARE(part->report.warnings.size(), 1);
    QVERIFY(part->report.warnings.first().contains("does not allow printing, changing, copying"));
    const auto asItIs = opened->engine->pdf({everyPage, std::nullopt, true});
    QVERIFY(asItIs.ok());
    QCOMPARE(asItIs->report.warnings, QStringList());  // it is still protected
  }

  void onlyPermissionsThatAreLostAreNamed() {
    const auto lost = [](bool print, bool change, bool copy) {
      const QByteArray plain = onePage("0 0 9 9 re f");
      QPDF qpdf;
      qpdf.processMemoryFile("test", plain.constData(), size_t(plain.size()));
      QPDFWriter writer(qpdf);
      writer.setOutputMemory();
      writer.setR6EncryptionParameters("", "owner", true, copy, true, true, true, change,
                                       print ? qpdf_r3p_full : qpdf_r3p_low, true);
      const auto chosen = chosenPdf(written(writer), {}, {});
      return chosen ? chosen->lostProtection : chosen.error().message;
    };
    const QString frame = QStringLiteral(
        "the document is protected by encryption and does not allow %1; what is made of it is not protected");
    QCOMPARE(lost(false, true, true), frame.arg("printing"));
    QCOMPARE(lost(true, false, true), frame.arg("changing"));
    QCOMPARE(lost(true, true, false), frame.arg("copying"));
    QCOMPARE(lost(true, true, true),
             QStringLiteral("the document is protected by encryption, and what is made of it is not"));
  }

  // ---- layers

  void namesOfLayersAreOneLineAndHaveAnEnd() {
    QByteArray pdf = layered("");
    const QByteArray name(limits::maximumNameLength + 10, 'x');
    pdf.replace("(Red)", "( R\\n  ed )").replace("(Green)", '(' + name + ')').replace("/Name (Blue)", "");
    const auto opened = open(pdf);
    QVERIFY(opened->engine);
    const QList<PictureLayer> layers = opened->engine->facts()->layers;
    QCOMPARE(layers.size(), 3);
    QCOMPARE(layers[0].name, "R ed");
    QCOMPARE(layers[1].name.size(), limits::maximumNameLength);
    QCOMPARE(layers[2].name, QString());
  }

  void theDocumentsOwnWishesForScreenAndPaperGiveWay() {
    const auto chosen = chosenPdf(layered("/ON [5 0 R] /AS [<< /Event /View >>] /OFF [6 0 R]"), {},
                                  {{"Red", false}, {"Green", false}, {"Blue", true}});
    QVERIFY(chosen.ok());
    QPDF qpdf;
    qpdf.processMemoryFile("test", chosen->bytes.constData(), size_t(chosen->bytes.size()));
    QPDFObjectHandle standard = qpdf.getRoot().getKey("/OCProperties").getKey("/D");
    QVERIFY(standard.getKey("/BaseState").isNameAndEquals("/ON"));
    QVERIFY(!standard.hasKey("/ON") && !standard.hasKey("/AS"));
    QCOMPARE(standard.getKey("/OFF").getArrayNItems(), 2);
  }

  void layersAreToldAsTheyAreShown_data() {
    QTest::addColumn<QByteArray>("standard");
    QTest::addColumn<QString>("layers");
    QTest::addColumn<QString>("painted");
    QTest::newRow("nothing said") << QByteArray() << "R+G+B+"
                                  << "RGB";
    QTest::newRow("off") << QByteArray("/OFF [6 0 R]") << "R+G-B+"
                         << "R-B";
    QTest::newRow("all off but one") << QByteArray("/BaseState /OFF /ON [7 0 R]") << "R-G-B+"
                                     << "--B";
    QTest::newRow("an order of its own")
        << QByteArray("/Order [7 0 R (Label) [6 0 R 5 0 R]] /OFF [5 0 R]") << "B+G+R-"
        << "-GB";
    QTest::newRow("some are not offered") << QByteArray("/Order [6 0 R]") << "G+"
                                          << "RGB";
  }
  void layersAreToldAsTheyAreShown() {
    QFETCH(QByteArray, standard);
    const auto opened = open(layered(standard));
    QVERIFY(opened->engine);
    QTEST(shownLayers(*opened->engine), "layers");
    QTEST(painted(*opened->engine), "painted");
  }

  void whatIsSwitchedHoldsForScreenAndForEverythingHandedOut() {
    const auto opened = open(layered("/OFF [7 0 R]"), {}, {{"Red", false}, {"Green", true}, {"Blue", true}});
    QVERIFY(opened->engine);
    QCOMPARE(shownLayers(*opened->engine), QString("R-G+B+"));
    QCOMPARE(painted(*opened->engine), QString("-GB"));
    for (const auto& made : {opened->engine->pdf({everyPage, std::nullopt, false}), opened->engine->pdf({}),
                             opened->engine->compose({VectorFormat::Pdf, 0, QRectF(-15, -5, 30, 10), 0})}) {
      QVERIFY(made.ok());
      QCOMPARE(painted(*open(made->bytes)->engine), QString("-GB"));
    }
    const auto svg = opened->engine->compose({VectorFormat::Svg, 0, QRectF(-15, -5, 30, 10), 0});
    QVERIFY(svg.ok());
    QVERIFY(!svg->bytes.contains("#f00") && !svg->bytes.contains("#ff0000"));
  }

  void aLockedLayerStaysAsItIs() {
    const auto opened =
        open(layered("/Locked [5 0 R]"), {}, {{"Red", false}, {"Green", false}, {"Blue", true}});
    QCOMPARE(shownLayers(*opened->engine), QString("R+G-B+"));
  }

  void oneOfAGroupHidesTheOthers() {
    const auto opened = open(layered("/OFF [6 0 R 7 0 R] /RBGroups [[5 0 R 6 0 R]]"), {},
                             {{"Red", true}, {"Green", true}, {"Blue", false}});
    QCOMPARE(shownLayers(*opened->engine), QString("R-G+B-"));
  }

  void oneOfAGroupIsSwitchedBackAsOneSwitchedIt() {
    const QByteArray pdf = layered("/OFF [6 0 R] /RBGroups [[5 0 R 6 0 R]]");
    const QList<PictureLayer> second{{"Red", false}, {"Green", true}, {"Blue", true}};
    const QList<PictureLayer> both{{"Red", true}, {"Green", true}, {"Blue", true}};
    QCOMPARE(shownLayers(*open(pdf, {}, both)->engine), QString("R-G+B+"));
    const auto back = open(pdf, {}, second + both);
    QCOMPARE(shownLayers(*back->engine), QString("R+G-B+"));
    QCOMPARE(painted(*back->engine), QString("R-B"));
  }

  void whatComesUpStaysInFrontOfItsLaterRival() {
    const QByteArray pdf = layered("/OFF [5 0 R] /RBGroups [[5 0 R 6 0 R]]");
    const auto opened = open(pdf, {}, {{"Red", true}, {"Green", true}, {"Blue", true}});
    QCOMPARE(shownLayers(*opened->engine), QString("R+G-B+"));
  }

  void layersOfAnotherDocumentSwitchNothing() {
    const auto opened = open(layered("/OFF [6 0 R]"), {}, {{"Red", false}, {"Yellow", true}});
    QCOMPARE(shownLayers(*opened->engine), QString("R+G-B+"));
  }

  void noMoreLayersThanCanBeToldAreOffered() {
    QByteArray order;
    QList<QByteArray> groups;
    for (int i = 0; i < limits::maximumLayers + 100; ++i) {
      order += QByteArray::number(4 + i) + " 0 R ";
      groups << "<< /Type /OCG /Name (Layer) >>";
    }
    const QByteArray pdf =
        madePdf(QList<QByteArray>{"<< /Type /Catalog /Pages 2 0 R /OCProperties << /OCGs [" + order +
                                      "] /D << /Order [" + order + "] >> >> >>",
                                  "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                                  "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 30 10] >>"} +
                groups);
    const auto opened = open(pdf);
    QVERIFY(opened->engine);
    QCOMPARE(opened->engine->facts()->layers.size(), limits::maximumLayers);
  }

  /// The same one again and again, and another behind them.
  void arraysOfLayersAreReadToAnEnd() {
    const auto shown = [](int before) {
      QByteArray pdf = layered("");
      pdf.replace("/OCGs [5 0 R 6 0 R 7 0 R]", "/OCGs [" + QByteArray("5 0 R ").repeated(before) + "6 0 R]");
      const auto opened = open(pdf);
      return opened->engine ? shownLayers(*opened->engine) : opened->error->message;
    };
    QCOMPARE(shown(limits::maximumLayerEntries - 1), QString("R+G+"));
    QCOMPARE(shown(limits::maximumLayerEntries), QString("R+"));
  }

  void ordersThatNeverEndAreReadOnce() {
    QByteArray pdf = layered("/Order 8 0 R");
    pdf.replace("7 0 obj\n<< /Type /OCG /Name (Blue) >>\nendobj\n",
                "7 0 obj\n<< /Type /OCG /Name (Blue) >>\nendobj\n8 0 obj\n[8 0 R 6 0 R 8 0 R]\nendobj\n");
    const auto opened = open(pdf);
    QVERIFY(opened->engine);
    QCOMPARE(shownLayers(*opened->engine), QString("G+"));
  }
};

NORVEX_TEST(ChosenPdfTest)
#include "chosen_pdf_test.moc"
