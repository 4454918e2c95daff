#include "programs/expected_pictures.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "cli/arguments/command_table.h"
#include "cli/arguments/conversion_use.h"

namespace norvex {
namespace {

using Text = std::string_view;

/// Behind the last dot.
Text extensionOf(Text name) {
  const size_t dot = name.rfind('.');
  return dot == Text::npos ? Text() : name.substr(dot + 1);
}

/// As its name has it.
DocumentKind kindOfFile(Text name) {
  const auto format = formatOfExtension(extensionOf(name));
  return format ? rowOf(*format).kind : DocumentKind::Other;
}

PictureNeeds needsOfFile(Text name, PictureUse use) {
  const PictureNeeds pages = use == PictureUse::Facts ? NeedFacts : NeedPages;
  switch (kindOfFile(name)) {
    case DocumentKind::Svg:
      return svgNeeds(use);
    case DocumentKind::Pdf:
    case DocumentKind::Illustrator:
      return pages;
    default:
      return 0;  // what PostScript needs is loaded while Ghostscript starts, which takes longer
  }
}

/// A window does everything with its picture, and an interpreter that takes its time waits for nothing.
PictureNeeds needsInWindow(Text name) {
  const DocumentKind kind = kindOfFile(name);
  if (kind == DocumentKind::Other) return allPictureNeeds;
  return kind == DocumentKind::Eps ? PictureNeeds(NeedPages) : needsOfFile(name, PictureUse::Everything);
}

/// An Illustrator file may be either.
bool isWithoutPostScript(Text name) {
  const DocumentKind kind = kindOfFile(name);
  return kind == DocumentKind::Svg || kind == DocumentKind::Pdf;
}

const OptionRow* optionNamed(Command command, Text name) {
  for (const OptionRow& row : optionTable)
    if ((row.commands & only(command)) && row.name == name) return &row;
  return nullptr;
}

const OptionRow* optionWithLetter(Command command, char letter) {
  for (const OptionRow& row : optionTable)
    if ((row.commands & only(command)) && row.letter == letter) return &row;
  return nullptr;
}

/// The arguments behind a command, as far as they can be read: what is wrong with them is told later.
class Reading {
 public:
  Reading(Command command, int argc, const char* const* argv) : command_(command), argc_(argc), argv_(argv) {
    bool onlyFiles = false;
    for (at_ = command == Command::Main ? 1 : 2; at_ < argc_; ++at_) {
      const Text argument = argv_[at_];
      if (onlyFiles || argument == "-" || !argument.starts_with('-'))
        files.push_back(argument);
      else if (argument == "--")
        onlyFiles = true;
      else if (argument.starts_with("--"))
        readName(argument.substr(2));
      else
        readLetters(argument.substr(1));
    }
  }

  std::vector<Text> files;

  [[nodiscard]] bool has(Option option) const { return given_[size_t(option)]; }
  [[nodiscard]] bool asksForArchive() const {
    for (const OptionRow& row : optionTable)
      if (isAboutArchives(row.id) && has(row.id)) return true;
    return false;
  }
  /// Empty where it is not given.
  [[nodiscard]] Text value(Option option) const { return values_[size_t(option)]; }

 private:
  void readName(Text name) {
    const size_t end = name.find('=');
    if (const OptionRow* row = optionNamed(command_, name.substr(0, end)))
      take(*row, end == Text::npos ? Text() : name.substr(end));
  }

  /// Several switches may share a dash; the first option with a value has the rest.
  void readLetters(Text letters) {
    for (; !letters.empty(); letters.remove_prefix(1)) {
      const OptionRow* row = optionWithLetter(command_, letters[0]);
      if (!row) continue;
      if (!row->value.empty()) return take(*row, letters.substr(1));
      take(*row, {});
    }
  }

  /// `rest`: the value in the same argument, perhaps behind a "="; empty: it is the next argument.
  void take(const OptionRow& row, Text rest) {
    const bool isNext = rest.empty() && !row.value.empty();
    if (isNext && at_ + 1 >= argc_) return;
    given_[size_t(row.id)] = true;
    if (isNext) rest = argv_[++at_];
    values_[size_t(row.id)] = !isNext && rest.starts_with('=') ? rest.substr(1) : rest;
  }

  const Command command_;
  const int argc_;
  const char* const* const argv_;
  int at_ = 0;
  std::array<bool, optionTable.size()> given_{};
  std::array<Text, optionTable.size()> values_{};
};

ExpectedPictures expectedInWindows(const Reading& run) {
  ExpectedPictures expected;
  for (const Text file : run.files) expected.needs |= needsInWindow(file);
  if (run.files.empty()) expected.needs = allPictureNeeds;
  return expected;
}

/// One document, opened once, whose process needs no other to be forked from.
bool isSinglePicture(const Reading& run) {
  // The process that is started for a single picture has the usual limits.
  const bool usualLimits = !run.has(Option::Timeout) && !run.has(Option::Memory);
  return run.files.size() == 1 && isWithoutPostScript(run.files[0]) && usualLimits && !run.asksForArchive();
}

ExpectedPictures expectedConversions(const Reading& run) {
  const Text name = run.value(Option::Format);
  const auto format =
      name.empty() ? formatOfExtension(extensionOf(run.value(Option::Output))) : formatNamed(name);
  const PictureUse use = useOfConversion(format, !run.has(Option::Crop) && !run.has(Option::Rotate));
  ExpectedPictures expected;
  for (const Text file : run.files) expected.needs |= needsOfFile(file, use);
  expected.single = isSinglePicture(run);
  return expected;
}

}  // namespace

ExpectedPictures expectedPictures(int argc, const char* const* argv) {
  const auto command = commandNamed(argc > 1 ? argv[1] : "");
  if (!command) return expectedInWindows(Reading(Command::Main, argc, argv));
  if (!rowOf(*command).isLight) return {.needs = allPictureNeeds};
  const Reading run(*command, argc, argv);
  if (*command == Command::Convert) return expectedConversions(run);
  ExpectedPictures expected;
  if (*command == Command::Preview) return expected;
  const PictureUse use = *command == Command::Check  ? PictureUse::WholePdf
                         : *command == Command::Text ? PictureUse::Everything
                         : *command == Command::Info ? PictureUse::Facts
                                                     : PictureUse::Drawing;
  for (const Text file : run.files) expected.needs |= needsOfFile(file, use);
  expected.single = use == PictureUse::Facts && isSinglePicture(run);
  return expected;
}

bool expectLonePicture(int argc, const char* const* argv) {
  const auto command = commandNamed(argc > 1 ? argv[1] : "");
  if (!command) return false;
  const Reading run(*command, argc, argv);
  return run.files.size() == 1 && !run.asksForArchive();
}

bool expectPostScript(int argc, const char* const* argv) {
  const auto command = commandNamed(argc > 1 ? argv[1] : "");
  // A window is given files alone, where a command stands in front of its own.
  const Command given = command.value_or(Command::Main);
  const bool draws = given == Command::Convert || given == Command::Inks || given == Command::Check ||
                     given == Command::Repair || given == Command::Thumbnail || given == Command::Text;
  if (command && rowOf(given).isLight && !draws) return false;
  const Reading run(given, argc, argv);
  return std::any_of(run.files.begin(), run.files.end(),
                     [](Text file) { return kindOfFile(file) == DocumentKind::Eps; });
}

bool expectPdfInks(int argc, const char* const* argv) {
  if (commandNamed(argc > 1 ? argv[1] : "") != Command::Inks) return false;
  const Reading run(Command::Inks, argc, argv);
  return std::any_of(run.files.begin(), run.files.end(), [](Text file) {
    return kindOfFile(file) == DocumentKind::Pdf || kindOfFile(file) == DocumentKind::Illustrator;
  });
}

}  // namespace norvex
