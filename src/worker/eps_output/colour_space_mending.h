// Colour spaces of profiles that Poppler's generator cannot write.
#pragma once

#include <qpdf/QPDF.hh>

namespace norvex::engine {

/// The generator makes PostScript's own device-independent spaces of profiles, with components from 0 to 1,
/// and as many as the profile has. A profile of Lab becomes PDF's own Lab, and one that has not as many
/// components as the document says the device space of that many. Throws as qpdf does.
void mendColourSpaces(QPDF& qpdf);

}  // namespace norvex::engine
