// Profiles: what is read of their TOML, what is refused, and how they judge.
#include "check/profile.h"

#include <QTemporaryDir>

#include <sys/stat.h>

#include "kit/test_main.h"
#include "protocol/limits.h"

using namespace norvex;

namespace {

QString complaintAbout(const QByteArray& toml) {
  const Result<Profile> profile = profileFromToml(toml);
  return profile ? QString() : profile.error().message;
}

}  // namespace

class ProfileTest : public QObject {
  Q_OBJECT
 private slots:
  void limitsAndSeveritiesAreRead() {
    const Result<Profile> profile = profileFromToml(
        "[limits]\ncolour-dpi = 300\nthinnest-line = 0.25\ncolumns-mm = [90, 190.5]\ncolumn-tolerance-mm = "
        "3\n"
        "rgb = false\ncolour-spaces = [\"DeviceGray\", \"Separation Gold\"]\n[severities]\n\"fonts.type3\" = "
        "\"error\"\n\"eps.preview.missing\" = \"off\"\n");
    QVERIFY2(profile.ok(), qPrintable(profile ? QString() : profile.error().message));
    QCOMPARE(profile->limits.colourDpi, std::optional(300.0));
    QCOMPARE(profile->limits.thinnestLine, std::optional(0.25));
    QVERIFY(!profile->limits.greyDpi);
    QCOMPARE(profile->limits.columns, QList<double>({90, 190.5}));
    QCOMPARE(profile->limits.columnTolerance, 3.0);
    QVERIFY(!profile->limits.rgb);
    QCOMPARE(profile->limits.colourSpaces, QStringList({"DeviceGray", "Separation Gold"}));
    QCOMPARE(profile->severities["fonts.type3"], std::optional(Severity::Error));
    QCOMPARE(profile->severities["eps.preview.missing"], std::optional<Severity>());
  }

  void theLastLineNeedsNoEnd() {
    for (const char* toml : {"[limits]\ncolour-dpi = 300", "[limits]\ncolour-dpi = 300  # enough",
                             "[limits]\r\ncolour-dpi = 300\r\n"}) {
      const Result<Profile> profile = profileFromToml(toml);
      QVERIFY2(profile.ok(), toml);
      QCOMPARE(profile->limits.colourDpi, std::optional(300.0));
    }
  }

  void aFileOfMegabytesIsNoProfile() {
    const QTemporaryDir folder;
    const auto sentence = [&](qint64 bytes) {
      QFile file(folder.filePath("a.toml"));
      if (!file.open(QIODevice::WriteOnly) || !file.resize(0)) return QString("not written");
      file.write("[limits]\n" + QByteArray(bytes - 9, '\n'));
      file.close();
      const Result<Profile> profile = profileNamed(file.fileName());
      return profile ? QString() : profile.error().message;
    };
    QCOMPARE(sentence(limits::maximumProfileBytes), QString());
    QCOMPARE(sentence(limits::maximumProfileBytes + 1),
             folder.filePath("a.toml") + " is too large for a profile");
  }

  void whatIsMisspeltIsToldWithItsLine() {
    QCOMPARE(complaintAbout("[limits]\ncolor-dpi = 300\n"), "line 2: there is no limit color-dpi");
    QCOMPARE(complaintAbout("[limit]\n"), "line 1: there is no limit, only [limits] and [severities]");
    QCOMPARE(complaintAbout("\n[severities]\n\"fonts.typ3\" = \"error\"\n"),
             "line 3: there is no rule fonts.typ3");
    QCOMPARE(complaintAbout("[severities]\n\"fonts.type3\" = \"fatal\"\n"),
             "line 2: fonts.type3 is one of: error, warning, note, off");
    QCOMPARE(complaintAbout("[limits]\ncolour-dpi = \"300\"\n"), "line 2: colour-dpi is a number from 0");
    QCOMPARE(complaintAbout("[limits]\ncolour-dpi = -1\n"), "line 2: colour-dpi is a number from 0");
    QCOMPARE(complaintAbout("[limits]\ncolour-dpi = 0\n"), "");
    QCOMPARE(complaintAbout("[limits]\nrgb = 1\n"), "line 2: rgb is true or false");
    for (const char* value : {"\"DeviceGray\"", "[1]", "true"})
      QCOMPARE(complaintAbout(QByteArray("[limits]\ncolour-spaces = ") + value + '\n'),
               "line 2: colour-spaces is a list of names");
    QVERIFY(complaintAbout("[limits\n").startsWith("line 1: "));
  }

  void whatIsNoTomlIsToldWithItsLineWhateverItsBytes() {
    for (const char* header : {"[&", "[[[1]]]", "[[=", "[ ", "[[ \n]]", "[.a]", "[\xC2\xA0]", "[a.]"})
      QVERIFY2(complaintAbout(QByteArray("[limits]\n") + header).startsWith("line 2: "),
               qPrintable(complaintAbout(QByteArray("[limits]\n") + header)));
    QVERIFY(complaintAbout("[limits]\ncolumns-mm = [ , 1]\n\n").startsWith("line 2: "));
    const QByteArray good = "[limits]\ncolumns-mm = [85, 120.5]\nrgb = false\n[severities]\n";
    for (qsizetype at = 0; at < good.size(); ++at)
      for (const char* bytes : {"[", "]", ",", "=", "\"", "'", ".", "\xC2\xA0", "\r", "\\", "{"}) {
        QByteArray spoilt = good;
        spoilt.insert(at, bytes);
        const QString complaint = complaintAbout(spoilt);
        QVERIFY2(complaint.isEmpty() || complaint.startsWith("line "), spoilt.constData());
      }
  }

  void theProfilesOfTheProgramAreSound() {
    QCOMPARE(shippedProfiles(), QStringList({"archive", "journal", "print", "web"}));
    for (const QString& name : shippedProfiles()) {
      const Result<Profile> profile = profileNamed(name);
      QVERIFY2(profile.ok(), qPrintable(profile ? QString() : profile.error().message));
    }
    QCOMPARE(profileNamed("journal")->limits.lineArtDpi, std::optional(1200.0));
  }

  void aFileOfOnesOwnIsAProfile() {
    const QTemporaryDir folder;
    QFile file(folder.filePath("mine.toml"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("[limits]\ntotal-ink = 280\n") > 0);
    file.close();
    QCOMPARE(profileNamed(file.fileName())->limits.totalInk, std::optional(280.0));
    QCOMPARE(profileNamed("nowhere").error().kind, ErrorKind::CannotRead);
  }

  void pipesAndDevicesAreNoProfiles() {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe.toml");
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& name : {pipe, QStringLiteral("/dev/zero"), folder.path()}) {
      const Result<Profile> profile = profileNamed(name);
      QVERIFY(!profile.ok());
      QCOMPARE(profile.error().kind, ErrorKind::CannotRead);
      QVERIFY2(profile.error().message.contains("no ordinary file"), qPrintable(profile.error().message));
    }
  }

  void aProfileChangesSeveritiesAndErrorsComeFirst() {
    const Findings findings{finding(rule("fonts.type3"), "a"), finding(rule("colour.spot"), "b"),
                            finding(rule("eps.truncated"), "c")};
    Profile profile;
    profile.severities = {{"colour.spot", Severity::Error}, {"fonts.type3", std::nullopt}};
    const Findings told = judged(findings, profile);
    QCOMPARE(told.size(), 2);
    QCOMPARE(told[0].sentence, "b");
    QCOMPARE(told[0].severity, Severity::Error);
    QCOMPARE(told[1].sentence, "c");
    QCOMPARE(judged(findings, {}).first().sentence, "c");
  }
};

NORVEX_TEST(ProfileTest)
#include "profile_test.moc"
