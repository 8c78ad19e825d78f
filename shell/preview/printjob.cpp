// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/printjob.h"

#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/core/framelines.h"
#include "shell/preview/exactpaper.h"
#include "shell/preview/previewmessages.h"
#include "shell/program/covering.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <QShortcutEvent>
#include <QStandardPaths>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// From here on printing takes long enough to be worth a Stop button.
constexpr std::size_t manySheets = 20;
constexpr int soonOver = 500; ///< milliseconds, for which nobody needs to see progress

/// Of a file that not everybody may read.
constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

/// Before the first byte is in it.
void keepFromOthers(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadWrite))
        file.setPermissions(ownerOnly);
}

/// While it lives, nothing but the status bar takes clicks and keys, and no window closes: the sheets being
/// printed stay what they are. Esc and the access key of "Stop" stop.
class OnlyStop final : public QObject
{
public:
    explicit OnlyStop(ActivityBar &activity)
        : m_activity(activity)
    {
        connect(&activity, &ActivityBar::stopRequested, this, [this] { m_isStopped = true; });
        qApp->installEventFilter(this);
    }

    bool isStopped() const { return m_isStopped; }

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(receiver);
        if (event->type() == QEvent::Shortcut) {
            // Whichever menu has the same key: meanwhile it is the button's.
            m_isStopped = m_isStopped || static_cast<QShortcutEvent *>(event)->key() == m_activity.stopKey();
            return true;
        }
        if (!widget || widget == &m_activity || m_activity.isAncestorOf(widget))
            return false;
        switch (event->type()) {
        case QEvent::KeyPress:
            m_isStopped = m_isStopped || static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
            return true;
        case QEvent::Close:
            event->ignore();
            return true;
        case QEvent::KeyRelease:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::Drop:
            return true;
        default:
            return false;
        }
    }

private:
    ActivityBar &m_activity;
    bool m_isStopped = false;
};

std::vector<int> allSheets(const PagePainter &painter)
{
    std::vector<int> sheets(std::size_t(painter.sheetCount()), 0);
    std::iota(sheets.begin(), sheets.end(), 0);
    return sheets;
}

/// What the print dialog asked for, in printing order. Copies are made here only where the printer cannot
/// make them.
std::vector<int> chosenSheets(const QPrinter &printer, const PagePainter &painter, int currentSheet)
{
    std::vector<int> chosen = allSheets(painter);
    if (printer.printRange() == QPrinter::CurrentPage)
        chosen.assign(1, std::clamp(currentSheet, 0, painter.sheetCount() - 1));
    else if (const QPageRanges ranges = printer.pageRanges();
             printer.printRange() == QPrinter::PageRange && !ranges.isEmpty())
        std::erase_if(chosen, [&ranges](int sheet) { return !ranges.contains(sheet + 1); });
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(chosen.begin(), chosen.end());
    const int copies = printer.supportsMultipleCopies() ? 1 : std::max(1, printer.copyCount());
    std::vector<int> sheets;
    if (printer.collateCopies()) {
        for (int copy = 0; copy < copies; ++copy)
            sheets.insert(sheets.end(), chosen.begin(), chosen.end());
    } else {
        for (const int sheet : chosen)
            sheets.insert(sheets.end(), std::size_t(copies), sheet);
    }
    return sheets;
}

bool isSamePaper(const PageSetup &one, const PageSetup &other)
{
    constexpr double tolerance = 0.02; // inches: sizes in points and millimetres are rounded
    return one.orientation == other.orientation &&
           std::abs(one.paper.width() - other.paper.width()) < tolerance &&
           std::abs(one.paper.height() - other.paper.height()) < tolerance;
}

/// A name that every file system takes.
QString fileNameFor(const QString &job)
{
    QString name;
    for (const QChar character : job)
        name += character < u' ' || u"/\\:*?\"<>|"_s.contains(character) ? u'-' : character;
    name = name.trimmed();
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    return name.isEmpty() ? u"Quillery"_s : name;
}

/// `path` as a PDF's name. The dialog asked about replacing the name as it was typed, not about the one with
/// the suffix: a file of that name is left alone and a number is added.
QString withSuffix(const QString &path)
{
    constexpr auto suffix = ".pdf"_L1;
    if (path.endsWith(suffix, Qt::CaseInsensitive))
        return path;
    QString name = path + suffix;
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = path + u" ("_s + QString::number(i) + u')' + suffix;
    return name;
}

} // namespace

PrintJob::PrintJob(Program &program, ActivityBar &activity, QWidget *parent, QString name)
    : m_program(program)
    , m_activity(activity)
    , m_parent(parent)
    , m_name(std::move(name))
{}

bool PrintJob::run(const PagePainter &painter, const PageSetup &setup, int currentSheet,
                   const Relayout &relayout)
{
    m_activity.say({});
    return m_program.dialogs.hasPrinter() ? toPrinter(painter, setup, currentSheet, relayout)
                                          : toFile(painter);
}

bool PrintJob::toPrinter(const PagePainter &painter, const PageSetup &setup, int currentSheet,
                         const Relayout &relayout)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_name);
    printer.setCreator(Page::productLine());
    printer.setPageLayout(PagePainter::deviceLayout(setup));
    if (!m_program.dialogs.choosePrinter(m_parent, printer) || !mayGoOn())
        return false;
    const bool isToFile =
        printer.outputFormat() == QPrinter::PdfFormat || !printer.outputFileName().isEmpty();
    if (isToFile && m_mayWriteFile && !m_mayWriteFile())
        return false;
    const PageSetup chosen = PagePainter::setupOf(printer.pageLayout());
    std::optional<PagePainter> other;
    if (!isSamePaper(chosen, setup))
        other = relayout(chosen);
    const PagePainter &shown = other ? *other : painter;
    const std::vector<int> sheets = chosenSheets(printer, shown, currentSheet);
    if (sheets.empty()) {
        m_activity.say(PreviewMessages::noSuchPage());
        return false;
    }
    if (m_mayWriteFile && !printer.outputFileName().isEmpty())
        keepFromOthers(printer.outputFileName());
    const Outcome outcome = printSheets(shown, printer, sheets);
    if (outcome == Outcome::Stopped)
        printer.abort();
    if (outcome == Outcome::Failed)
        m_activity.say(PreviewMessages::notPrinted());
    if (outcome == Outcome::Done)
        m_activity.say(printer.outputFileName().isEmpty()
                           ? PreviewMessages::printed(int(sheets.size()))
                           : FrameLines::savedAs(QDir::toNativeSeparators(printer.outputFileName())));
    return outcome == Outcome::Done;
}

bool PrintJob::toFile(const PagePainter &painter)
{
    if (m_mayWriteFile && !m_mayWriteFile())
        return false;
    const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const QString preset = documents.filePath(fileNameFor(m_name) + u".pdf"_s);
    const auto path = m_program.dialogs.chooseFileToSave(m_parent, PreviewMessages::printToFileTitle(),
                                                         preset, u"PDF (*.pdf)"_s);
    if (!path || path->isEmpty() || !mayGoOn())
        return false;
    const QString name = withSuffix(*path);
    const QString shownName = QDir::toNativeSeparators(name);
    QSaveFile file(name); // a PDF of that name stays whole until the new one is
    Outcome outcome = Outcome::Failed;
    if (file.open(QIODevice::WriteOnly)) {
        if (m_mayWriteFile)
            file.setPermissions(ownerOnly);
        ExactPaper paper(file, painter.sheetSize());
        QPdfWriter pdf(&paper);
        pdf.setTitle(m_name);
        pdf.setCreator(Page::productLine());
        outcome = printSheets(painter, pdf, allSheets(painter));
    }
    if (outcome == Outcome::Stopped)
        return false;
    if (outcome == Outcome::Failed || !file.commit()) {
        m_activity.say(PreviewMessages::notSaved(shownName, file.errorString()));
        return false;
    }
    m_activity.say(FrameLines::savedAs(shownName));
    return true;
}

/// Nothing of a window that is covered goes on to the printer; a box of the system's own can still be
/// answered then.
bool PrintJob::mayGoOn() const
{
    return !Covering::isCovered(*m_parent) && (!m_mayGoOn || m_mayGoOn());
}

PrintJob::Outcome PrintJob::printSheets(const PagePainter &painter, QPagedPaintDevice &device,
                                        const std::vector<int> &sheets)
{
    std::optional<BusyCursor> busy;
    if (sheets.size() <= manySheets)
        busy.emplace();
    if (sheets.size() == 1)
        return painter.print(device, sheets) ? Outcome::Done : Outcome::Failed;
    const OnlyStop guard(m_activity);
    const auto isStopped = [&] { return guard.isStopped() || !mayGoOn(); };
    QElapsedTimer time;
    time.start();
    int done = 0;
    const bool isPrinted = painter.print(device, sheets, [&](int) {
        ++done;
        if (sheets.size() <= manySheets && time.elapsed() < soonOver)
            return true;
        busy.reset();
        m_activity.showProgress(done, int(sheets.size()), true);
        QCoreApplication::processEvents();
        return !isStopped();
    });
    m_activity.showProgress(0, 0);
    if (isPrinted)
        return Outcome::Done;
    if (!isStopped())
        return Outcome::Failed;
    m_activity.say(PreviewMessages::printingStopped());
    return Outcome::Stopped;
}
