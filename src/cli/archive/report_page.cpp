#include "cli/archive/report_page.h"

#include <QDateTime>
#include <QLocale>
#include <QStringList>

#include <algorithm>

#include "base/file_name.h"
#include "cli/archive/state/duration_text.h"
#include "cli/files/console.h"

namespace norvex {
namespace {

constexpr char kStyle[] = R"(
:root{color-scheme:light dark;--ink:#1d2530;--quiet:#5c6773;--line:#dfe3e8;--paper:#fff;--card:#f6f7f9;
--done:#2c8a57;--failed:#c9372c;--aside:#b3760a;--left:#c3cad3}
@media(prefers-color-scheme:dark){:root{--ink:#e4e7eb;--quiet:#9aa5b1;--line:#38404a;--paper:#16191d;
--card:#1f242a;--done:#4bb27c;--failed:#ef7066;--aside:#dda23a;--left:#4a535e}}
body{font:15px/1.5 system-ui,sans-serif;color:var(--ink);background:var(--paper);max-width:60rem;
margin:2.5rem auto;padding:0 1.25rem}
h1{font-size:1.6rem;line-height:1.25;margin:0;overflow-wrap:anywhere}
h2{font-size:1.1rem;margin:2.5rem 0 .75rem}
p{margin:.25rem 0}.quiet{color:var(--quiet);font-size:.87rem;overflow-wrap:anywhere}
.lead{font-size:1.1rem;margin:1.75rem 0 .75rem}
.bar{display:flex;gap:2px;height:.75rem;border-radius:.4rem;overflow:hidden;background:var(--line)}
.bar i{flex-basis:3px}.done{background:var(--done)}.failed{background:var(--failed)}
.aside{background:var(--aside)}.left{background:var(--left)}
.key{display:flex;flex-wrap:wrap;gap:.4rem 1.5rem;margin:.75rem 0 0;padding:0;list-style:none}
.key i{display:inline-block;width:.7rem;height:.7rem;border-radius:2px;margin-right:.45rem}
.facts{display:flex;flex-wrap:wrap;gap:.75rem;margin:1.5rem 0 0}
.facts div{background:var(--card);border-radius:.5rem;padding:.6rem 1rem;min-width:9rem}
dt{color:var(--quiet);font-size:.8rem}dd{margin:0;font-size:1.15rem}
table{border-collapse:collapse;width:100%;font-variant-numeric:tabular-nums}
td,th{text-align:left;padding:.45rem 1.25rem .45rem 0;border-bottom:1px solid var(--line);
vertical-align:top}th{color:var(--quiet);font-size:.8rem;font-weight:normal}
td.n,th.n{text-align:right;white-space:nowrap;width:1%}td+td{overflow-wrap:anywhere}
td+td+td{width:50%;color:var(--quiet);font:.8rem/1.6 ui-monospace,monospace;padding-right:0}
.sheet{display:grid;grid-template-columns:repeat(auto-fill,minmax(17rem,1fr));gap:1rem}
figure{margin:0;padding:.75rem;background:var(--card);border-radius:.5rem}
.pair{display:grid;grid-template-columns:1fr 1fr;gap:.5rem}
.pair div{font-size:.75rem;color:var(--quiet)}
.pair img,.pair b{display:block;width:100%;aspect-ratio:1;object-fit:contain;background:#fff;
border-radius:.25rem}.pair b{background:none;border:1px dashed var(--line);box-sizing:border-box;
font-weight:normal;text-align:center;padding:40% .25rem 0}
figcaption{font-size:.85rem;margin-top:.6rem}figcaption .quiet{font-size:.75rem}
@media print{body{margin:0;max-width:none}figure,tr{break-inside:avoid}})";

QString html(const QString& text) {
  return visible(text).toHtmlEscaped();
}

QString html(const QByteArray& path) {
  return html(fileNameText(path));
}

QString grouped(qint64 number) {
  return QLocale(QLocale::English).toString(number);
}

QString fileCount(qint64 count) {
  return count == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(grouped(count));
}

QString timeText(qint64 seconds) {
  return QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

/// Files of a state that are alike.
struct Part {
  qint64 count;
  const char* color;  ///< a class of the style
  const char* name;
};

/// What was begun is not done: where the rest is known it is among it.
qint64 leftOf(const StateSummary& summary) {
  return std::max(summary.rest.value_or(0), summary.begun);
}

QList<Part> partsOf(const StateSummary& summary) {
  const QList<Part> all{{summary.done, "done", "done"},
                        {summary.failed, "failed", "failed"},
                        {summary.setAside, "aside", "set aside: they made their picture process end"},
                        {leftOf(summary), "left", summary.rest ? "left" : "begun and not done"}};
  QList<Part> parts;
  std::copy_if(all.begin(), all.end(), std::back_inserter(parts),
               [](const Part& part) { return part.count > 0; });
  return parts;
}

QString lead(const QList<Part>& parts, const StateSummary& summary) {
  qint64 all = 0;
  for (const Part& part : parts) all += part.count;
  if (all == 0) return QStringLiteral("There were no files.");
  if (all == summary.done)
    return all == 1 ? QStringLiteral("The one file is done.")
                    : QStringLiteral("All %1 files are done.").arg(grouped(all));
  return QStringLiteral("%1 of %2 done.").arg(grouped(summary.done), fileCount(all));
}

QString progress(const StateSummary& summary) {
  const QList<Part> parts = partsOf(summary);
  QString text = QStringLiteral("<p class=lead>%1</p>\n").arg(lead(parts, summary));
  if (parts.isEmpty()) return text;
  QString bar, key;
  for (const Part& part : parts) {
    bar += QStringLiteral("<i class=%1 style=\"flex-grow:%2\"></i>")
               .arg(QLatin1String(part.color))
               .arg(part.count);
    key += QStringLiteral("<li><i class=%1></i>%2 %3\n")
               .arg(QLatin1String(part.color), grouped(part.count), QLatin1String(part.name));
  }
  return text + QStringLiteral("<div class=bar>%1</div>\n<ul class=key>\n%2</ul>\n").arg(bar, key);
}

QString facts(const StateSummary& summary) {
  QString list;
  const auto add = [&](const char* name, const QString& value) {
    list += QStringLiteral("<div><dt>%1<dd>%2</div>\n").arg(QLatin1String(name), value);
  };
  if (summary.filesASecond > 0)
    add("Files a second", QString::number(summary.filesASecond, 'f', summary.filesASecond < 10 ? 1 : 0));
  if (summary.seconds > 0) add("Work on all files", durationText(summary.seconds));
  if (summary.memoryKiB > 0)
    add("Memory of a picture, at most", QStringLiteral("%1 MiB").arg((summary.memoryKiB + 1023) / 1024));
  return list.isEmpty() ? list : QStringLiteral("<dl class=facts>\n%1</dl>\n").arg(list);
}

QString failures(const StateSummary& summary) {
  if (summary.failures.isEmpty()) return {};
  QString table =
      QStringLiteral("<h2>Failures</h2>\n<table>\n<tr><th class=n>Files<th>Cause<th>For example\n");
  qint64 others = summary.failed + summary.setAside;
  for (const StateSummary::Failure& failure : summary.failures) {
    others -= failure.count;
    table += QStringLiteral("<tr><td class=n>%1<td>%2<td>%3\n")
                 .arg(grouped(failure.count), html(failure.sentence), html(failure.example));
  }
  table += QStringLiteral("</table>\n");
  if (others > 0)
    table += QStringLiteral(
                 "<p class=quiet>%1 failed for causes that are less common; a report named "
                 ".jsonl tells of each.</p>\n")
                 .arg(fileCount(others));
  return table;
}

QString picture(const char* name, const QByteArray& png) {
  const QString shown = png.isEmpty() ? QStringLiteral("<b>no picture</b>")
                                      : QStringLiteral("<img alt=\"\" src=\"data:image/png;base64,%1\">")
                                            .arg(QString::fromLatin1(png.toBase64()));
  return QStringLiteral("<div>%1%2</div>").arg(shown, QLatin1String(name));
}

QString contactSheet(const QList<ChangedPicture>& pictures) {
  if (pictures.isEmpty()) return {};
  QString sheet;
  for (const ChangedPicture& changed : pictures)
    sheet += QStringLiteral(
                 "<figure><div class=pair>%1%2</div><figcaption>%3 % became an image<br>"
                 "<span class=quiet>%4</span></figcaption></figure>\n")
                 .arg(picture("Before", changed.before), picture("After", changed.after),
                      QString::number(changed.share * 100, 'f', 1), html(changed.path));
  return QStringLiteral("<h2>What changed most</h2>\n<div class=sheet>\n%1</div>\n").arg(sheet);
}

QString heading(const QByteArray& state, const StateSummary& summary) {
  const QString name = html(state.mid(state.lastIndexOf('/') + 1));
  QStringList told{html(state)};
  if (summary.started) told << QStringLiteral("begun %1").arg(timeText(*summary.started));
  if (summary.finished) told << QStringLiteral("last result %1").arg(timeText(*summary.finished));
  return QStringLiteral(
             "%1</title>\n<meta name=viewport content=\"width=device-width\">\n<style>%2</style>\n"
             "<h1>%1</h1>\n<p class=quiet>%3</p>\n")
      .arg(name, QLatin1String(kStyle), told.join(QStringLiteral(" · ")));
}

}  // namespace

QByteArray reportPage(const QByteArray& state, const StateSummary& summary,
                      const QList<ChangedPicture>& changed) {
  const QString text = QLatin1String(reportPageBegin) + heading(state, summary) + progress(summary) +
                       facts(summary) + failures(summary) + contactSheet(changed);
  return text.toUtf8();
}

}  // namespace norvex
