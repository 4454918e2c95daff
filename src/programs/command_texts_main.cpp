// norvex-command-texts: what is installed beside the program and follows the table of commands. Part of the
// build only. usage: norvex-command-texts man|bash|zsh|fish
#include <QString>

#include <cstdio>

#include "cli/arguments/manual_page.h"
#include "cli/arguments/shell_completion.h"

int main(int argc, char** argv) {
  const QString asked = QString::fromLatin1(argc == 2 ? argv[1] : "");
  const QString text = asked == QLatin1String("man") ? norvex::manualPage() : norvex::completionScript(asked);
  if (text.isEmpty()) return std::fputs("usage: norvex-command-texts man|bash|zsh|fish\n", stderr), 2;
  const QByteArray bytes = text.toUtf8();
  const bool written =
      std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stdout) == size_t(bytes.size());
  return written && std::fflush(stdout) == 0 ? 0 : 1;
}
