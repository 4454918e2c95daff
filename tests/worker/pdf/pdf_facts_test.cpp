#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include "kit/test_main.h"
#include "protocol/page_names.h"
#include "worker/kit/made_pdf.h"
#include "worker/kit/told_of_pdf.h"
#include "worker/pdf/pdf_colour_operators.h"
#include "worker/pdf/pdf_facts.h"

using namespace norvex;
using namespace norvex::engine;
using kit::factsOf;
using kit::madePdf;
using kit::namesOf;
using kit::onePage;

namespace {

QByteArray withInformation(const QByteArray& information) {
  return onePage("", "/MediaBox [0 0 200 100]", {information}, "/Info 5 0 R");
}

QByteArray encrypted(const QByteArray& pdf, const char* userPassword) {
  QPDF qpdf;
  qpdf.processMemoryFile("test", pdf.constData(), size_t(pdf.size()));
  QPDFWriter writer(qpdf);
  writer.setOutputMemory();
  writer.setR6EncryptionParameters(userPassword, "owner", true, true, true, true, true, true, qpdf_r3p_full,
                                   true);
  writer.write();
  const auto buffer = writer.getBufferSharedPointer();
  return QByteArray(reinterpret_cast<const char*>(buffer->getBuffer()), qsizetype(buffer->getSize()));
}

}  // namespace

class PdfFactsTest : public QObject {
  Q_OBJECT
 private slots:
  void boundsAreTheShownBox_data() {
    QTest::addColumn<QByteArray>("page");
    QTest::addColumn<QRectF>("bounds");
    QTest::newRow("media box") << QByteArray("/MediaBox [0 0 200 100]") << QRectF(0, 0, 200, 100);
    QTest::newRow("fractions and a negative origin")
        << QByteArray("/MediaBox [-10.5 -20.25 100.5 50]") << QRectF(-10.5, -20.25, 111, 70.25);
    QTest::newRow("corners in the wrong order")
        << QByteArray("/MediaBox [200 100 0 0]") << QRectF(0, 0, 200, 100);
    QTest::newRow("crop box") << QByteArray("/MediaBox [0 0 200 100] /CropBox [10 20 60 50]")
                              << QRectF(10, 20, 50, 30);
    QTest::newRow("crop box beyond the media box")
        << QByteArray("/MediaBox [0 0 200 100] /CropBox [-50 20 500 50]") << QRectF(0, 20, 200, 30);
    QTest::newRow("crop box outside the media box")
        << QByteArray("/MediaBox [0 0 200 100] /CropBox [300 300 400 400]") << QRectF(0, 0, 200, 100);
    QTest::newRow("turned by 90") << QByteArray("/MediaBox [0 0 200 100] /Rotate 90")
                                  << QRectF(0, 0, 100, 200);
    QTest::newRow("turned by -90") << QByteArray("/MediaBox [0 0 200 100] /Rotate -90")
                                   << QRectF(0, 0, 100, 200);
    QTest::newRow("turned by 180") << QByteArray("/MediaBox [0 0 200 100] /Rotate 180")
                                   << QRectF(0, 0, 200, 100);
    QTest::newRow("turned by 450") << QByteArray("/MediaBox [0 0 200 100] /Rotate 450")
                                   << QRectF(0, 0, 100, 200);
    QTest::newRow("turned by 45 is not turned")
        << QByteArray("/MediaBox [0 0 200 100] /Rotate 45") << QRectF(0, 0, 200, 100);
    QTest::newRow("user unit") << QByteArray("/MediaBox [10 0 210 100] /UserUnit 2")
                               << QRectF(20, 0, 400, 200);
    QTest::newRow("a user unit of nothing")
        << QByteArray("/MediaBox [0 0 200 100] /UserUnit 0") << QRectF(0, 0, 200, 100);
    QTest::newRow("no box at all") << QByteArray("") << QRectF(0, 0, 612, 792);
    QTest::newRow("an empty box") << QByteArray("/MediaBox [5 5 5 5]") << QRectF(0, 0, 612, 792);
    QTest::newRow("a box of words") << QByteArray("/MediaBox [/a /b /c /d]") << QRectF(0, 0, 612, 792);
    QTest::newRow("a box of absurd numbers")
        << QByteArray("/MediaBox [0 0 1e30 99999999999]") << QRectF(0, 0, 612, 792);
  }
  void boundsAreTheShownBox() {
    QFETCH(QByteArray, page);
    QFETCH(QRectF, bounds);
    const auto facts = factsOf(onePage("", page));
    QVERIFY2(facts.ok(), facts ? "" : qPrintable(facts.error().message));
    QCOMPARE(facts->pageBounds, QList<QRectF>{bounds});
  }

  void pagesInheritTheirBoxes() {
    const auto facts =
        factsOf(madePdf({"<< /Type /Catalog /Pages 2 0 R >>",
                         "<< /Type /Pages /Kids [3 0 R 4 0 R] /Count 2 /MediaBox [0 0 50 60] /Rotate 90 >>",
                         "<< /Type /Page /Parent 2 0 R >>",
                         "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 7 8] /Rotate 0 >>"}));
    QVERIFY(facts.ok());
    QCOMPARE(facts->pageCount, 2);
    QCOMPARE(facts->pageBounds, (QList<QRectF>{QRectF(0, 0, 60, 50), QRectF(0, 0, 7, 8)}));
  }

  void aFileWithoutInformationHasNoAttributes() {
    const auto facts = factsOf(onePage(""));
    QVERIFY(facts.ok());
    QVERIFY(facts->attributes.isEmpty());
    QVERIFY(!facts->creationDate);
    QVERIFY(facts->warnings.isEmpty());
  }

  void anAttributeThatIsMissingIsAbsent() {
    const auto facts = factsOf(withInformation("<< /Title (A title) >>"));
    QVERIFY(facts.ok());
    QCOMPARE(facts->attributes, (QHash<QString, QString>{{"Title", "A title"}}));
  }

  void textIsDecoded() {
    const auto facts = factsOf(withInformation(
        "<< /Title (caf\\351 \\240 \\222) /Author <FEFF65E5672C8A9E> /Subject <EFBBBFE2809CC3BCE2809D> "
        "/Creator (plain\\000) /Producer <FFFE41004200> >>"));
    QVERIFY(facts.ok());
    QCOMPARE(facts->attributes.value("Title"), QString::fromUtf8("café € ™"));
    QCOMPARE(facts->attributes.value("Author"), QString::fromUtf8("日本語"));
    QCOMPARE(facts->attributes.value("Subject"), QString::fromUtf8("“ü”"));
    QCOMPARE(facts->attributes.value("Creator"), QString("plain"));
    QCOMPARE(facts->attributes.value("Producer"), QString("AB"));
  }

  void valuesThatAreNoTextAreLeftOut() {
    const auto facts =
        factsOf(withInformation("<< /Title 7 /Author [ (x) ] /Subject /Name /Creator null >>"));
    QVERIFY(facts.ok());
    QVERIFY(facts->attributes.isEmpty());
  }

  void dates_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");  // empty: no date
    QTest::newRow("with a zone") << "D:20240229101112+05'30'"
                                 << "2024-02-29T10:11:12+05:30";
    QTest::newRow("without a closing apostrophe") << "D:20240229101112-08'00"
                                                  << "2024-02-29T10:11:12-08:00";
    QTest::newRow("without apostrophes") << "D:20240229101112-0800"
                                         << "2024-02-29T10:11:12-08:00";
    QTest::newRow("Z") << "D:20240229101112Z"
                       << "2024-02-29T10:11:12Z";
    QTest::newRow("Z and zeros") << "D:20240229101112Z00'00'"
                                 << "2024-02-29T10:11:12Z";
    QTest::newRow("no zone") << "D:20240229101112"
                             << "2024-02-29T10:11:12Z";
    QTest::newRow("no D:") << "20240229101112"
                           << "2024-02-29T10:11:12Z";
    QTest::newRow("year only") << "D:1999"
                               << "1999-01-01T00:00:00Z";
    QTest::newRow("to the minute") << "D:199912312359"
                                   << "1999-12-31T23:59:00Z";
    QTest::newRow("no such day") << "D:20230229"
                                 << "";
    QTest::newRow("words") << "Thursday"
                           << "";
    QTest::newRow("empty") << ""
                           << "";
  }
  void dates() {
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const auto date = parsePdfDate(text);
    QCOMPARE(date ? date->toString(Qt::ISODate) : QString(), expected);
  }

  void aDateSurvivesWritingAndReading() {
    for (const char* text : {"D:20240229101112+05'30'", "D:20240229101112-08'00'", "D:19700101000000Z"}) {
      const auto date = parsePdfDate(QString::fromLatin1(text));
      QVERIFY(date.has_value());
      QCOMPARE(pdfDate(*date), QString::fromLatin1(text));
    }
  }

  void theCreationDateIsTold() {
    const auto facts = factsOf(withInformation("<< /CreationDate (D:20240102030405Z) >>"));
    QVERIFY(facts.ok() && facts->creationDate.has_value());
    QCOMPARE(facts->creationDate->toString(Qt::ISODate), QString("2024-01-02T03:04:05Z"));
  }

  void aPasswordIsAskedForPlainly() {
    const auto facts = factsOf(encrypted(onePage(""), "secret"));
    QVERIFY(!facts.ok());
    QCOMPARE(facts.error().kind, ErrorKind::Encrypted);
    QVERIFY(facts.error().message.contains("password"));
  }

  void anEmptyPasswordOpens() {
    const auto facts = factsOf(encrypted(onePage("", "/MediaBox [0 0 31 41]"), ""));
    QVERIFY(facts.ok());
    QCOMPARE(facts->pageBounds, QList<QRectF>{QRectF(0, 0, 31, 41)});
  }

  void aDamagedFileIsRepairedWithAWarning() {
    QByteArray pdf = onePage("", "/MediaBox [0 0 31 41]");
    pdf.truncate(pdf.indexOf("xref"));
    const auto facts = factsOf(pdf + "trailer << /Root 1 0 R >>");
    QVERIFY2(facts.ok(), facts ? "" : qPrintable(facts.error().message));
    QCOMPARE(facts->pageBounds, QList<QRectF>{QRectF(0, 0, 31, 41)});
    QCOMPARE(facts->warnings.size(), 1);
    QVERIFY(facts->warnings.first().contains("damaged"));
  }

  void junkBeforeTheHeaderDoesNoHarm() {
    const auto facts = factsOf("\r\njunk\r\n" + onePage("", "/MediaBox [0 0 31 41]"));
    QVERIFY(facts.ok());
    QCOMPARE(facts->pageBounds, QList<QRectF>{QRectF(0, 0, 31, 41)});
  }

  void whatIsNoPdfIsToldInOneSentence_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("this is not a picture\n");
    QTest::newRow("header only") << QByteArray("%PDF-1.4\n");
    QTest::newRow("binary") << QByteArray(5000, '\xff');
    QTest::newRow("a catalogue without pages") << madePdf({"<< /Type /Catalog >>"});
    QTest::newRow("an empty page tree")
        << madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [] /Count 0 >>"});
    QTest::newRow("a page tree that contains itself")
        << madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [2 0 R 2 0 R] /Count 2 >>"});
  }
  void whatIsNoPdfIsToldInOneSentence() {
    QFETCH(QByteArray, bytes);
    const auto facts = factsOf(bytes);
    QVERIFY(!facts.ok());
    QCOMPARE(facts.error().kind, ErrorKind::NotParsable);
    QVERIFY(!facts.error().message.isEmpty());
    QVERIFY(!facts.error().message.contains('\n'));
  }

  void everyTruncationIsAnAnswer() {
    const QByteArray pdf = withInformation("<< /Title (x) /CreationDate (D:2024) >>");
    for (qsizetype length = 0; length < pdf.size(); length += 7) {
      const auto facts = factsOf(pdf.left(length));
      QVERIFY(facts.ok() || !facts.error().message.isEmpty());
    }
  }

  void anIllustratorFileWithoutPdfContentSaysSo_data() {
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QByteArray>("entries");
    QTest::addColumn<bool>("told");
    const QByteArray notice =
        "BT /F1 8 Tf 10 80 Td (This is an Adobe Illustrator File that was) Tj 0 -12 Td "
        "[(saved with) -3 (out PDF Content.)] TJ ET";
    const QByteArray font =
        "/Resources << /Font << /F1 << /Type /Font /Subtype /Type1 /BaseFont /Helvetica >> >> >> ";
    const QByteArray data = "/PieceInfo << /Illustrator << /LastModified (D:2020) >> >> ";
    QTest::newRow("the notice") << notice << font + data << true;
    QTest::newRow("the notice in a file of another program") << notice << font << false;
    QTest::newRow("artwork of Illustrator") << QByteArray("0 0 10 10 re f") << data << false;
    QTest::newRow("a large page that cites the notice")
        << notice + QByteArray(20000, ' ') << font + data << false;
  }
  void anIllustratorFileWithoutPdfContentSaysSo() {
    QFETCH(QByteArray, contents);
    QFETCH(QByteArray, entries);
    QFETCH(bool, told);
    const auto facts = factsOf(onePage(contents, "/MediaBox [0 0 200 100] " + entries));
    QVERIFY(facts);
    QCOMPARE(facts->warnings.join(u'|'),
             told ? QStringLiteral("this Illustrator file was saved without PDF content, so it shows a "
                                   "notice instead of the artwork")
                  : QString());
  }

  void fontsAndColourSpacesAreThoseOfTheFirstPage() {
    const QByteArray page =
        "/MediaBox [0 0 9 9] /Resources << /Font << /A 5 0 R /B 6 0 R /C 5 0 R >> /XObject << /F 7 0 R /I 8 "
        "0 R >> "
        "/ColorSpace << /S [/Separation /PANTONE#20186#20C /DeviceCMYK 9 0 R] /N [/DeviceN [/Gold /Cyan] "
        "/DeviceCMYK 9 0 "
        "R] /X [/Indexed /DeviceGray 1 <00FF>] /P /Pattern >> /Shading << /H << /ShadingType 2 /ColorSpace "
        "[/Lab << >>] >> >> >>";
    const PageNames names = namesOf(onePage(
        "(0 0 1 rg \\) 0 G) Tj % 1 0 0 rg\n0 0 0 1 k /gs gs", page,
        {"<< /Type /Font /Subtype /Type1 /BaseFont /ABCDEF+Gentium#20Book >>",
         "<< /Type /Font /BaseFont /Helvetica >>",
         kit::stream("1 0 0 RG",
                     "/Type /XObject /Subtype /Form /Resources << /Font << /D << /BaseFont /Deep >> >> "
                     "/XObject << /Self 7 0 R >> >>"),
         kit::stream("x", "/Subtype /Image /ColorSpace [/ICCBased 10 0 R]"), "<< /FunctionType 2 >>",
         kit::stream("", "/N 4")}));
    QCOMPARE(names.fonts, (QStringList{"Gentium Book", "Helvetica", "Deep"}));
    QCOMPARE(names.colorSpaces, (QStringList{"DeviceCMYK", "DeviceN Gold, Cyan", "Separation PANTONE 186 C",
                                             "DeviceGray", "Lab", "DeviceRGB", "ICCBased CMYK"}));
    QVERIFY(namesOf(onePage("0 0 1 1 re")).fonts.isEmpty());
    QVERIFY(namesOf(onePage("0 0 1 1 re")).colorSpaces.isEmpty());
  }

  void aNameIsToldOnce() {
    const PageNames names = namesOf(
        onePage("1 0 0 rg",
                "/MediaBox [0 0 9 9] /Resources << /ColorSpace << /S /DeviceRGB >> /Font << "
                "/A 5 0 R /B 6 0 R >> >>",
                {"<< /Type /Font /BaseFont /Helvetica >>", "<< /Type /Font /BaseFont /Helvetica >>"}));
    QCOMPARE(names.fonts, QStringList{"Helvetica"});
    QCOMPARE(names.colorSpaces, QStringList{"DeviceRGB"});
  }

  void namesAreNotLookedForWhereNobodyAsks() {
    const auto facts = factsOf(onePage("1 0 0 rg 0 0 9 9 re f"));
    QVERIFY(facts->fonts.isEmpty() && facts->colorSpaces.isEmpty());
  }

  void colourSpacesThatDoNotExistAreNotNamed() {
    QVERIFY(deviceColoursOf("/DeviceA cs /DeviceLab CS /Devices cs").isEmpty());
    QCOMPARE(deviceColoursOf("/DeviceRGB cs /DeviceX CS"), QStringList{"DeviceRGB"});
  }

  void colourOperatorsAreFoundInContentsAlone() {
    QCOMPARE(deviceColoursOf("BI /W 1 /CS /RGB ID \x01 0 g \x02 EI 0 0 0 1 K"),
             (QStringList{"DeviceRGB", "DeviceCMYK"}));
    QCOMPARE(deviceColoursOf("/DeviceGray cs /DeviceN cs <30206b> Tj << /k 1 >> DP"),
             QStringList{"DeviceGray"});
    for (const char* cut : {"(abc \\", "(abc", "<30", "/", "BI ID ", "%", "[", "0 0 0 r"})
      QVERIFY(deviceColoursOf(cut).isEmpty());
  }

  void aPageThatUnpacksToGigabytesOpensAllTheSame() {
    // Thirty mebibytes of blanks packed a thousand times over: no more than the limit of it is unpacked.
    const QByteArray blanks(30 << 20, ' ');
    const QByteArray packed = qCompress("0 g " + blanks + "1 0 0 rg", 9).mid(4);
    const QByteArray pdf =
        madePdf({"<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
                 "<< /Type /Page /Parent 2 0 R /Contents 4 0 R /MediaBox [0 0 9 9] >>",
                 kit::stream(packed, "/Filter /FlateDecode")});
    const PictureFacts facts = *factsOf(pdf);
    QCOMPARE(namesOf(pdf).colorSpaces, QStringList{"DeviceGray"});
    QVERIFY(facts.warnings.isEmpty());
  }
};

NORVEX_TEST(PdfFactsTest)
#include "pdf_facts_test.moc"
