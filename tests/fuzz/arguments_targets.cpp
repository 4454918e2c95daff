// The command line: arguments are the lines of the bytes.
#include <QString>
#include <QStringList>

#include "cli/arguments/arguments.h"
#include "fuzz/targets.h"

namespace norvex::fuzz {
namespace {

bool arguments(const QByteArray& bytes) {
  const QStringList given = QString::fromUtf8(bytes).split('\n');
  const ReadArguments read = readArguments(given);
  const bool fine = read.complaint.isEmpty();
  const CommandRow& row = rowOf(read.arguments.command);
  const auto files = read.arguments.files.size();
  require(fine || (files == 0 && read.arguments.values.isEmpty()), "wrong arguments leave the command alone");
  bool asksAboutProgram = false;  // that is answered whatever else is given
  for (const Option option : {Option::Help, Option::Version, Option::SandboxStatus, Option::Completion})
    asksAboutProgram = asksAboutProgram || read.arguments.has(option);
  const bool takesAny = asksAboutProgram || read.arguments.asksForArchive() || row.mostFiles < 0;
  require(!fine || takesAny || files <= row.mostFiles, "no more files than the command takes");
  require(files <= given.size(), "each file was given");
  for (const Option option : read.arguments.values.keys())
    require((rowOf(option).commands & only(read.arguments.command)) != 0, "options are the command's own");
  return fine && asksForCommandLine(given.first());
}

QList<QByteArray> seeds() {
  return {"--help",
          "--version",
          "info\n--json\npicture.eps",
          "convert\npicture.svg\n-o\npicture.pdf\n--crop\n0,0,10,20\n--rotate=30",
          "convert\n--format=png\n--to\nfolder\n--jobs\n4\n--\n-strange-.eps",
          "source\n-",
          "convert\n-qf\na.eps\nb.eps\n--format\nfax",
          "preview\n--output\nx.tiff\na.eps",
          "preview\n--to\nfolder\na.eps\nb.eps\nc.eps",
          "cnvert\n\n--\n--"};
}

}  // namespace

QList<Target> argumentsTargets() {
  return {{"arguments", arguments, seeds, 1000}};
}

}  // namespace norvex::fuzz
