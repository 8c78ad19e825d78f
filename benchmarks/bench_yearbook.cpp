// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "journal/model/journalpages.h"
#include "shell/pages/pagepainter.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int year = 2026;
constexpr double bodyPoints = 11;

PageFont bodyFont()
{
    PageFont font;
    font.font.setPointSizeF(bodyPoints);
    return font;
}

PageContext context()
{
    return {.setup = {.paper = PageMetrics::a5},
            .style = DateStyle::Usa,
            .today = QDate(2026, 11, 23),
            .family = u"Holm"_s};
}

/// An entry for every day, of 1,500 characters in five paragraphs with some marks.
QList<JournalEntry> fullYear()
{
    QList<JournalEntry> entries;
    entries.reserve(365);
    const QString sentence =
        u"The ferry was **late** again, and *nobody* minded: the sun stood over the quay. "_s;
    for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1)) {
        QString text;
        for (int i = 0; i < 5; ++i)
            text += sentence.repeated(3) + u"Anne came by bicycle at %1.\n\n"_s.arg(date.dayOfYear() + i);
        entries.append({.date = date, .tags = {u"ferry"_s, u"day %1"_s.arg(date.day())}, .text = text});
    }
    return entries;
}

/// The strings of all lines, as they stand on the sheets.
QList<QStringList> stringsOf(const PagePainter &painter)
{
    QList<QStringList> sheets;
    for (int sheet = 0; sheet < painter.sheetCount(); ++sheet) {
        // A line of the book has about 70 letters.
        QStringList lines;
        for (const QString &line : painter.text(sheet).split(u'\n')) {
            for (qsizetype at = 0; at < line.size(); at += 70)
                lines << line.mid(at, 70);
        }
        sheets << lines;
    }
    return sheets;
}

void drawBare(const QList<QStringList> &sheets, const QString &path)
{
    QPdfWriter writer(path);
    writer.setPageLayout(PagePainter::deviceLayout(context().setup));
    QPainter painter(&writer);
    painter.setFont(bodyFont().font);
    const double line = writer.logicalDpiY() * PageMetrics::lineHeight(TextRole::Body);
    for (const QStringList &sheet : sheets) {
        if (&sheet != &sheets.constFirst())
            writer.newPage();
        double y = line;
        for (const QString &text : sheet)
            painter.drawText(QPointF(0, y += line), text);
    }
}

/// From the entries to the PDF.
void makeYearbook(benchmark::State &state)
{
    const QTemporaryDir folder;
    const JournalPages::Source source{.entries = fullYear(), .people = {u"Anne Lind"_s}};
    const auto page = [&source] { return JournalPages::yearbook(source, year, {}, context()); };
    const QList<QStringList> strings = stringsOf(PagePainter(page(), context().setup, bodyFont()));
    state.counters["sheets"] = double(strings.size());
    Limit limit(state, 4);
    for ([[maybe_unused]] auto _ : state) {
        limit.measure([&] {
            QPdfWriter writer(folder.filePath(u"book.pdf"_s));
            if (!PagePainter(page(), context().setup, bodyFont()).print(writer))
                qFatal("no book");
        });
        limit.reference([&] { drawBare(strings, folder.filePath(u"bare.pdf"_s)); });
    }
}

} // namespace

BENCHMARK(makeYearbook)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    return benchmark::RunSpecifiedBenchmarks() > 0 ? 0 : 1;
}
