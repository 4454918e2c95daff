// The use that a picture is wanted for: limits, and how bad each finding is then.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

#include "base/result.h"
#include "check/finding.h"

namespace norvex {

/// A limit that is absent is not checked.
struct ProfileLimits {
  std::optional<double> colourDpi, greyDpi, lineArtDpi;  ///< pixels an inch of images, at least
  std::optional<double> thinnestLine;                    ///< points
  std::optional<double> smallestText;                    ///< points
  std::optional<double> totalInk;                        ///< percent
  QList<double> columns;       ///< widths that a picture may have, millimetres; none: any
  double columnTolerance = 2;  ///< millimetres
  bool rgb = true;             ///< RGB colours are wanted, or may stay
  QStringList colourSpaces;    ///< that may be used, as PDF calls them; none: any
};

struct Profile {
  ProfileLimits limits;
  /// By identifier; nothing: such findings are not told. Those that are not named keep the rule's own.
  QHash<QString, std::optional<Severity>> severities;
};

/// Reads the TOML of a profile. Every key must be known, every rule be there: what is misspelt would be
/// passed over in silence. Fails with NotParsable and the line. Thread-safe.
[[nodiscard]] Result<Profile> profileFromToml(const QByteArray& toml);

/// Names of the profiles that come with the program, in alphabetical order.
[[nodiscard]] QStringList shippedProfiles();
/// The profile of that name, or of the file. Fails with CannotRead when it is neither, and as
/// profileFromToml().
[[nodiscard]] Result<Profile> profileNamed(const QString& nameOrFile);

/// The findings with the profile's severities, without those that it does not want; errors first, otherwise
/// in their order.
[[nodiscard]] Findings judged(const Findings& findings, const Profile& profile);

}  // namespace norvex
