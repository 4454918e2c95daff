#include "check/profile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <variant>

#define TOML_HEADER_ONLY 1
#define TOML_EXCEPTIONS 0
#include <toml++/toml.h>

#include "check/profile_text.h"
#include "protocol/limits.h"

namespace norvex {
namespace {

struct NumberKey {
  std::string_view name;
  std::optional<double> ProfileLimits::*value;
};
constexpr std::array<NumberKey, 6> kNumbers{{{"colour-dpi", &ProfileLimits::colourDpi},
                                             {"grey-dpi", &ProfileLimits::greyDpi},
                                             {"line-art-dpi", &ProfileLimits::lineArtDpi},
                                             {"thinnest-line", &ProfileLimits::thinnestLine},
                                             {"smallest-text", &ProfileLimits::smallestText},
                                             {"total-ink", &ProfileLimits::totalInk}}};

QString text(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// What is wrong with a profile, and in which line.
struct Fault {
  uint line = 0;
  QString sentence;
};

class Reader {
 public:
  std::variant<Profile, Fault> read(const toml::table& table) {
    for (const auto& [key, node] : table) {
      if (key == "limits" && node.is_table())
        for (const auto& [name, value] : *node.as_table()) readLimit(name.str(), name.source(), value);
      else if (key == "severities" && node.is_table())
        for (const auto& [name, value] : *node.as_table()) readSeverity(name.str(), name.source(), value);
      else
        fail(key.source(),
             QStringLiteral("there is no %1, only [limits] and [severities]").arg(text(key.str())));
    }
    if (fault_) return *fault_;
    return profile_;
  }

 private:
  void fail(const toml::source_region& where, const QString& sentence) {
    if (!fault_) fault_ = Fault{where.begin.line, sentence};
  }

  /// A number from 0; what is none is told.
  std::optional<double> number(std::string_view name, const toml::node& node) {
    const auto value = node.value<double>();
    if (node.is_number() && value && *value >= 0 && *value < 1e6) return value;
    fail(node.source(), QStringLiteral("%1 is a number from 0").arg(text(name)));
    return std::nullopt;
  }

  void readLimit(std::string_view name, const toml::source_region& where, const toml::node& node) {
    for (const NumberKey& key : kNumbers)
      if (key.name == name) {
        profile_.limits.*key.value = number(name, node);
        return;
      }
    if (name == "rgb") {
      if (!node.is_boolean()) return fail(node.source(), QStringLiteral("rgb is true or false"));
      profile_.limits.rgb = node.as_boolean()->get();
    } else if (name == "colour-spaces") {
      readColourSpaces(node);
    } else if (name == "column-tolerance-mm") {
      profile_.limits.columnTolerance = number(name, node).value_or(0);
    } else if (name == "columns-mm") {
      if (!node.is_array()) return fail(node.source(), QStringLiteral("columns-mm is a list of numbers"));
      for (const toml::node& width : *node.as_array())
        profile_.limits.columns << number(name, width).value_or(0);
    } else {
      fail(where, QStringLiteral("there is no limit %1").arg(text(name)));
    }
  }

  void readColourSpaces(const toml::node& node) {
    const auto isName = [](const toml::node& space) { return space.is_string(); };
    if (!node.is_array() || !std::all_of(node.as_array()->begin(), node.as_array()->end(), isName))
      return fail(node.source(), QStringLiteral("colour-spaces is a list of names"));
    for (const toml::node& space : *node.as_array())
      profile_.limits.colourSpaces << text(space.value_or(std::string_view()));
  }

  void readSeverity(std::string_view name, const toml::source_region& where, const toml::node& node) {
    if (!ruleNamed(name)) return fail(where, QStringLiteral("there is no rule %1").arg(text(name)));
    const QString word = text(node.value_or(std::string_view()));
    const auto severity = severityNamed(word);
    if (!severity && word != u"off")
      return fail(node.source(), QStringLiteral("%1 is one of: error, warning, note, off").arg(text(name)));
    profile_.severities.insert(text(name), severity);
  }

  Profile profile_;
  std::optional<Fault> fault_;
};

QString shippedFolder() {
  return QStringLiteral(":/profiles");
}

std::variant<Profile, Fault> readProfile(const QByteArray& toml) {
  const ProfileText plain = plainProfile(toml);
  if (plain.badLine > 0)
    return Fault{uint(plain.badLine),
                 QStringLiteral("this is neither a [table] nor a name with = and a value")};
  const toml::parse_result parsed =
      toml::parse(std::string_view(plain.toml.constData(), size_t(plain.toml.size())));
  if (parsed) return Reader().read(parsed.table());
  return Fault{parsed.error().source().begin.line, text(parsed.error().description())};
}

}  // namespace

Result<Profile> profileFromToml(const QByteArray& toml) {
  const auto read = readProfile(toml);
  if (const auto* profile = std::get_if<Profile>(&read)) return *profile;
  const auto& fault = std::get<Fault>(read);
  return Error{ErrorKind::NotParsable, QStringLiteral("line %1: %2").arg(fault.line).arg(fault.sentence)};
}

QStringList shippedProfiles() {
  QStringList names;
  for (const QString& file :
       QDir(shippedFolder()).entryList({QStringLiteral("*.toml")}, QDir::Files, QDir::Name))
    names << file.chopped(5);
  return names;
}

Result<Profile> profileNamed(const QString& nameOrFile) {
  const bool isShipped = shippedProfiles().contains(nameOrFile);
  QFile file(isShipped ? QStringLiteral("%1/%2.toml").arg(shippedFolder(), nameOrFile) : nameOrFile);
  // Pipes and devices may never end, or never begin.
  if (!isShipped && QFileInfo::exists(nameOrFile) && !QFileInfo(nameOrFile).isFile())
    return Error{ErrorKind::CannotRead,
                 QStringLiteral("%1 is no ordinary file, as a profile has to be").arg(nameOrFile)};
  if (!file.open(QIODevice::ReadOnly))
    return Error{ErrorKind::CannotRead,
                 QStringLiteral("there is no profile %1, and no file of that name; profiles are: %2")
                     .arg(nameOrFile, shippedProfiles().join(QStringLiteral(", ")))};
  // Some files say that they hold nothing, and do.
  const QByteArray toml = file.read(limits::maximumProfileBytes + 1);
  if (toml.size() > limits::maximumProfileBytes)
    return Error{ErrorKind::Limit, QStringLiteral("%1 is too large for a profile").arg(nameOrFile)};
  const auto read = readProfile(toml);
  if (const auto* profile = std::get_if<Profile>(&read)) return *profile;
  const auto& fault = std::get<Fault>(read);
  return Error{
      ErrorKind::NotParsable,
      QStringLiteral("%1, line %2: %3").arg(nameOrFile, QString::number(fault.line), fault.sentence)};
}

Findings judged(const Findings& findings, const Profile& profile) {
  Findings told;
  for (Finding one : findings) {
    const auto at = profile.severities.find(
        QString::fromLatin1(one.rule->identifier.data(), qsizetype(one.rule->identifier.size())));
    if (at != profile.severities.end()) {
      if (!*at) continue;
      one.severity = **at;
    }
    told << one;
  }
  std::stable_sort(told.begin(), told.end(),
                   [](const Finding& a, const Finding& b) { return a.severity < b.severity; });
  return told;
}

}  // namespace norvex
