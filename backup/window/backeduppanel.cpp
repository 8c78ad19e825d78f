// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/backeduppanel.h"

#include "backup/model/backuplines.h"
#include "shell/controls/tablework.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <QHeaderView>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

std::vector<TableColumn<ReportedCount>> columns()
{
    return {{u"Function"_s, Qt::AlignLeft, [](const ReportedCount &count) { return count.title; }},
            {u"In the copy"_s, Qt::AlignLeft, [](const ReportedCount &count) { return count.inCopy; }},
            {u"In the household"_s, Qt::AlignLeft, [](const ReportedCount &count) { return count.here; }}};
}

/// "40 addresses, 1,204 days, 2,000 pictures: copied and read back".
QString sentence(const BackupReport &report, const QList<ReportedCount> &counts)
{
    QStringList parts;
    for (const ReportedCount &count : counts) {
        if (!count.inCopy.isEmpty() && count.inCopy != u"Guarded"_s)
            parts.append(count.inCopy);
    }
    if (report.newPictures > 0)
        parts.append(BackupLines::pictures(report.newPictures));
    if (parts.isEmpty())
        parts.append(BackupLines::files(report.set.files.size()));
    QString words = parts.join(u", "_s) +
                    (report.set.isSealed ? u": sealed and read back."_s : u": copied and read back."_s);
    if (report.knownPictures > 0)
        words += u' ' + BackupLines::counted(report.knownPictures, u"picture was"_s, u"pictures were"_s) +
                 u" on the drive already."_s;
    if (!report.changing.isEmpty())
        words += u'\n' + BackupLines::files(report.changing.size()) +
                 u" changed meanwhile, and went along as they were last."_s;
    if (!report.unread.isEmpty())
        words += u'\n' + BackupLines::files(report.unread.size()) +
                 u" could not be read, and are not in it: see the report."_s;
    return words;
}

} // namespace

BackedUpPanel::BackedUpPanel(const BackupDesk &desk, QWidget *parent)
    : TaskPanel(u"donePanel"_s, {}, parent)
    , m_desk(desk)
    , m_words(named(new QLabel(this), u"doneWords"_s))
    , m_model(new RowsModel<ReportedCount>(columns(), this))
    , m_view(named(new QTableView(this), u"doneCounts"_s))
{
    m_words->setWordWrap(true);
    m_view->setModel(m_model);
    auto *work = new TableWork(m_words, m_view, u"What is in the copy"_s, this);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    setWork(work);
    QPushButton *report = addButton(u"doneReport"_s, u"&Report"_s, ButtonKind::Plain, Side::Left);
    QPushButton *files = addButton(u"doneFiles"_s, u"L&ist of Files"_s, ButtonKind::Plain, Side::Left);
    setFocusProxy(setLeaveButton(u"doneClose"_s, u"C&lose"_s, ButtonKind::Main));
    connect(report, &QPushButton::clicked, this, [this] {
        m_desk.window.showPreview(
            [report = m_report, counts = m_counts](const PageContext &context) {
                return BackupPages::report(report, counts, context);
            },
            u"Backup"_s);
    });
    connect(files, &QPushButton::clicked, this, [this] {
        m_desk.window.showPreview(
            [set = m_report.set](const PageContext &context) { return BackupPages::files(set, context); },
            u"Files of the Backup"_s);
    });
}

void BackedUpPanel::tell(const BackupReport &report, const QList<ReportedCount> &counts)
{
    m_report = report;
    m_counts = counts;
    setTitle(report.set.drive.isEmpty() ? u"The backup is complete"_s
                                        : u"The backup on %1 is complete"_s.arg(report.set.drive));
    m_words->setText(sentence(report, counts));
    m_model->setRows({counts.begin(), counts.end()});
    m_desk.views.open(this);
    setFocus();
}
