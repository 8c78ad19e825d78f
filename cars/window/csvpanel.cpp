// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/csvpanel.h"

#include "cars/model/csvlines.h"
#include "cars/window/carheadings.h"
#include "cars/window/csvmodel.h"
#include "cars/window/opencar.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int inset = 8;
constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;
} // namespace

CsvPanel::CsvPanel(const CarDesk &desk)
    : TaskPanel(u"carImportPanel"_s, {})
    , m_desk(desk)
    , m_work(new SlicedWork(this))
    , m_model(new CsvModel(this))
    , m_view(named(new QTableView(this), u"carImportList"_s))
    , m_hint(named(makeQuietLabel({}, this), u"carImportHint"_s))
{
    makeView();
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addWidget(m_hint);
    rows->addWidget(new WholeRows(m_view), 1);
    setWork(work);
    m_take = addButton(u"carImportTake"_s, u"&Take These Rows"_s, ButtonKind::Main);
    setLeaveButton(u"carImportClose"_s, u"C&lose"_s);
    setFocusProxy(m_view);
    connect(m_take, &QPushButton::clicked, this, &CsvPanel::take);
    connect(m_model, &CsvModel::chosenChanged, this, &CsvPanel::refresh);
    connect(m_work, &SlicedWork::finished, this, [this] {
        m_model->show(m_import.get(), m_part, m_desk.car.unit());
        shareWidth();
        refresh();
        m_view->selectRow(0);
    });
}

void CsvPanel::makeView()
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setHorizontalHeader(new CarHeadings(m_view)); // the fuel tracker's have two words
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->setAccessibleName(u"Lines of the file"_s);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
}

/// The columns of the grid share what the line's number and its fate leave.
void CsvPanel::shareWidth()
{
    const int count = m_model->columnCount();
    if (count < 3)
        return;
    const QFontMetrics body(TypeScale::body());
    const int number = body.horizontalAdvance(u"3000"_s) + 5 * inset;
    const int fate = body.horizontalAdvance(u"Not read: no date in it"_s) + 2 * inset;
    const int least = body.horizontalAdvance(u"12/30/2026"_s) + 2 * inset;
    const int each = std::max(least, (m_view->viewport()->width() - number - fate) / (count - 2));
    m_view->setColumnWidth(0, number);
    for (int column = 1; column < count - 1; ++column)
        m_view->setColumnWidth(column, each);
}

bool CsvPanel::open(const QString &path, CarPart part)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (file.size() > mostBytes) {
        emit said(CsvLines::tooLong(name));
        return false;
    }
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        emit said(CsvLines::cannotRead(name));
        return false;
    }
    setTitle(name);
    m_part = part;
    m_model->show(nullptr, part, m_desk.car.unit());
    m_import = std::make_unique<CarCsvImport>(file.readAll(), part, m_desk.car.record(),
                                              m_desk.program.state.dateStyle, m_desk.program.clock.today());
    m_work->start([this] { return m_import->step(); });
    refresh();
    return true;
}

void CsvPanel::refresh()
{
    const bool isBusy = m_work->isRunning();
    m_hint->setText(m_import->isReadable() ? CsvLines::whatIsTaken(m_part) : CsvLines::noColumns());
    setWords(isBusy ? QString() : CsvLines::toBeTaken(m_import->chosenCount(), m_import->lines().size()));
    QString why = m_desk.car.whyLocked(m_part);
    if (why.isEmpty() && isBusy)
        why = CsvLines::isBeingRead();
    if (why.isEmpty() && m_import->chosenCount() == 0)
        why = CsvLines::nothingToTake();
    setUnavailable(m_take, why);
}

void CsvPanel::take()
{
    const QString line = CsvLines::broughtIn(m_part, m_import->chosenCount());
    const CarRecord wanted = m_import->result();
    leave();
    m_desk.car.change(line, wanted);
    emit taken(line);
}

void CsvPanel::leave()
{
    m_work->stop();
    TaskPanel::leave();
}

bool CsvPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view->viewport() && event->type() == QEvent::Resize)
        shareWidth();
    const bool isSpace = watched == m_view && event->type() == QEvent::KeyPress &&
                         static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space;
    if (!isSpace || !m_view->currentIndex().isValid())
        return TaskPanel::eventFilter(watched, event);
    m_model->toggle(m_view->currentIndex().row());
    return true;
}
