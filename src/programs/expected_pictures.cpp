#include "programs/expected_pictures.h"

#include <strings.h>

#include <initializer_list>
#include <string_view>
#include <vector>

namespace norvex {
namespace {

using Text = std::string_view;

bool isOneOf(Text text, std::initializer_list<Text> names) {
  for (const Text name : names)
    if (text.size() == name.size() && ::strncasecmp(text.data(), name.data(), name.size()) == 0) return true;
  return false;
}

/// Behind the last dot.
Text extensionOf(Text name) {
  const size_t dot = name.rfind('.');
  return dot == Text::npos ? Text() : name.substr(dot + 1);
}

PictureUse useFor(Text format) {
  if (isOneOf(format, {"png", "jpeg", "jpg", "tiff", "tif", "gif", "svg", "svgz"}))
    return PictureUse::Drawing;
  return isOneOf(format, {"pdf"}) ? PictureUse::WholePdf : PictureUse::Everything;
}

PictureNeeds needsOfFile(Text name, PictureUse use) {
  if (isOneOf(extensionOf(name), {"svg", "svgz"})) return svgNeeds(use);
  // What PostScript needs is loaded while Ghostscript starts, which takes longer.
  return isOneOf(extensionOf(name), {"pdf", "ai"}) ? PictureNeeds(NeedPages) : 0;
}

/// An Illustrator file may be either.
bool isWithoutPostScript(Text name) {
  return isOneOf(extensionOf(name), {"svg", "svgz", "pdf"});
}

/// The value of the option at `i` when that is one of `names`: behind a "=", or the next argument, to which
/// `i` then moves.
bool readOption(int argc, const char* const* argv, int& i, std::initializer_list<Text> names, Text& value) {
  const Text argument = argv[i];
  for (const Text name : names) {
    if (argument == name && i + 1 < argc) return value = argv[++i], true;
    if (argument.starts_with(name) && argument.substr(name.size()).starts_with('='))
      return value = argument.substr(name.size() + 1), true;
  }
  return false;
}

ExpectedPictures expectedConversions(int argc, const char* const* argv) {
  Text format, output, part, limit, other;
  std::vector<Text> files;
  bool onlyFiles = false;
  for (int i = 2; i < argc; ++i) {
    const Text argument = argv[i];
    if (onlyFiles || argument == "-" || !argument.starts_with('-'))
      files.push_back(argument);
    else if (argument == "--")
      onlyFiles = true;
    else if (!readOption(argc, argv, i, {"--format"}, format) &&
             !readOption(argc, argv, i, {"-o", "--output"}, output) &&
             !readOption(argc, argv, i, {"--crop", "--rotate"}, part) &&
             !readOption(argc, argv, i, {"--timeout", "--memory"}, limit))
      readOption(argc, argv, i, {"--to", "--page", "--dpi", "--background", "--jobs"}, other);
  }
  PictureUse use = useFor(format.empty() ? extensionOf(output) : format);
  if (use == PictureUse::WholePdf && !part.empty()) use = PictureUse::Everything;
  ExpectedPictures expected;
  for (const Text file : files) expected.needs |= needsOfFile(file, use);
  // The process that is started for a single picture has the usual limits.
  expected.single = files.size() == 1 && isWithoutPostScript(files[0]) && limit.empty();
  return expected;
}

}  // namespace

ExpectedPictures expectedPictures(int argc, const char* const* argv) {
  const Text command = argc > 1 ? argv[1] : "";
  if (command == "convert") return expectedConversions(argc, argv);
  if (command == "preview") return {};
  ExpectedPictures expected;
  if (command != "info" && command != "source")
    expected.needs = allPictureNeeds;
  else
    for (int i = 2; i < argc; ++i) expected.needs |= needsOfFile(argv[i], PictureUse::Drawing);
  return expected;
}

}  // namespace norvex
