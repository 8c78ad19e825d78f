// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/weightcsvpanel.h"

#include "shell/controls/tablework.h"
#include "shell/controls/titleline.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "weight/model/weightpaperlines.h"

#include <QComboBox>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QTableView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;

enum Column { Number, Date, Weight, What, Columns };

QString whatBecomesOf(const WeightCsvLine &line)
{
    switch (line.state) {
    case WeightCsvLine::Ready:
        return u"Will be taken"_s;
    case WeightCsvLine::Duplicate:
        return u"Is there already"_s;
    case WeightCsvLine::NotRead:
        return u"Not read: "_s + line.problem;
    }
    Q_UNREACHABLE();
}

std::vector<TableColumn<WeightCsvLine>> columns()
{
    using Line = WeightCsvLine;
    return {{u"Line"_s, Qt::AlignRight, [](const Line &line) { return QString::number(line.number); }},
            {u"Date"_s, Qt::AlignLeft, [](const Line &line) { return line.date; }},
            {u"Weight"_s, Qt::AlignRight, [](const Line &line) { return line.weight; }},
            {u"What becomes of it"_s, Qt::AlignLeft, whatBecomesOf}};
}

} // namespace

WeightCsvPanel::WeightCsvPanel(const Program &program)
    : TaskPanel(u"weightImportPanel"_s, {})
    , m_program(program)
    , m_work(new SlicedWork(this))
    , m_model(new RowsModel<WeightCsvLine>(columns(), this))
    , m_view(named(new QTableView(this), u"weightImportList"_s))
    , m_filter(named(new QComboBox, u"weightImportFilter"_s))
    , m_hint(named(makeQuietLabel({}, this), u"weightImportHint"_s))
{
    m_filter->addItems({u"All lines"_s, u"To be taken"_s, u"There already"_s, u"Not read"_s});
    m_filter->setAccessibleName(u"Which lines are shown"_s);
    titleLine().addAtRight(m_filter);
    m_view->setModel(m_model);
    auto *work = new TableWork(m_hint, m_view, u"Lines of the file"_s, this);
    makeView();
    setWork(work);
    m_take = addButton(u"weightImportTake"_s, u"&Take These Weigh-Ins"_s, ButtonKind::Main);
    setLeaveButton(u"weightImportClose"_s, u"C&lose"_s);
    setFocusProxy(m_view);
    connect(m_take, &QPushButton::clicked, this, &WeightCsvPanel::take);
    connect(m_filter, &QComboBox::currentIndexChanged, this, &WeightCsvPanel::showLines);
    connect(m_work, &SlicedWork::finished, this, [this] {
        showLines();
        refresh();
    });
}

void WeightCsvPanel::makeView()
{
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->viewport()->installEventFilter(this);
}

/// What becomes of a line takes the rest.
void WeightCsvPanel::shareWidth()
{
    const QFontMetrics body(TypeScale::body());
    const auto widthOf = [&](const QString &text) { return body.horizontalAdvance(text) + 3 * inset; };
    m_view->setColumnWidth(Number, widthOf(u"10000"_s));
    m_view->setColumnWidth(Date, widthOf(u"12/30/2026"_s));
    m_view->setColumnWidth(Weight, widthOf(u"Weight"_s));
}

bool WeightCsvPanel::open(const QString &path, const WeightTable &weighIns)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (file.size() > mostBytes) {
        emit said(WeightPaperLines::tooLong(name));
        return false;
    }
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        emit said(WeightPaperLines::cannotRead(name));
        return false;
    }
    setTitle(name);
    m_import = std::make_unique<WeightCsvImport>(file.readAll(), weighIns, m_program.state.dateStyle,
                                                 m_program.clock.today());
    m_model->setRows({});
    m_filter->setCurrentIndex(0);
    m_work->start([this] { return m_import->step(); });
    refresh();
    return true;
}

void WeightCsvPanel::showLines()
{
    std::vector<WeightCsvLine> shown;
    const int filter = m_filter->currentIndex();
    if (m_import && !m_work->isRunning())
        std::ranges::copy_if(m_import->lines(), std::back_inserter(shown), [filter](const auto &line) {
            return filter <= 0 || int(line.state) == filter - 1;
        });
    m_model->setRows(std::move(shown));
    shareWidth();
    m_view->selectRow(0);
}

void WeightCsvPanel::refresh()
{
    const bool isBusy = m_work->isRunning();
    const int ready = m_import->count(WeightCsvLine::Ready);
    m_hint->setText(m_import->isReadable() ? WeightPaperLines::whatIsTaken() : WeightPaperLines::noColumns());
    setWords(isBusy ? QString()
                    : WeightPaperLines::whatBecomes(ready, m_import->count(WeightCsvLine::Duplicate),
                                                    m_import->count(WeightCsvLine::NotRead)));
    QString why;
    if (isBusy)
        why = WeightPaperLines::isBeingRead();
    else if (ready == 0)
        why = WeightPaperLines::nothingToTake();
    setUnavailable(m_take, why);
}

void WeightCsvPanel::take()
{
    const WeightTable weighIns = m_import->result();
    const QString line = WeightPaperLines::broughtIn(m_import->count(WeightCsvLine::Ready));
    leave();
    emit taken(weighIns, line);
}

void WeightCsvPanel::leave()
{
    m_work->stop();
    TaskPanel::leave();
}

bool WeightCsvPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view->viewport() && event->type() == QEvent::Resize)
        shareWidth();
    return TaskPanel::eventFilter(watched, event);
}
