// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/csvpanel.h"

#include "cars/model/carrows.h"
#include "cars/model/csvlines.h"
#include "cars/model/presentreading.h"
#include "cars/window/csvmodel.h"
#include "cars/window/opencar.h"
#include "shell/controls/groupheadings.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QActionGroup>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int inset = 8;
constexpr int measuredRows = 300;
constexpr int descriptionColumn = 3;
constexpr int leastDescription = 14; ///< characters
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
    m_hint->setWordWrap(true);
    rows->addWidget(m_hint);
    rows->addWidget(new WholeRows(m_view), 1);
    setWork(work);
    m_columns = addButton(u"carImportColumns"_s, u"Colu&mns..."_s, ButtonKind::Plain, Side::Left);
    connect(m_columns, &QPushButton::clicked, this, &CsvPanel::openColumns);
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
    m_view->setHorizontalHeader(new GroupHeadings(m_view)); // the fuel tracker's have two words
    QHeaderView *heading = m_view->horizontalHeader();
    heading->setStretchLastSection(true);
    heading->setSectionsClickable(true);
    heading->viewport()->setCursor(Qt::PointingHandCursor);
    connect(heading, &QHeaderView::sectionClicked, this, &CsvPanel::openChoices);
    m_view->setAccessibleName(u"Lines of the file"_s);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
}

/// What the words of a column and the words of its heading need.
int CsvPanel::widthOf(int column) const
{
    const QFontMetrics body(TypeScale::body());
    int width = 0;
    for (int row = 0; row < std::min(m_model->rowCount(), measuredRows); ++row)
        width = std::max(width, body.horizontalAdvance(m_model->index(row, column).data().toString()));
    return std::max(width + 3 * inset, GroupHeadings::leastWidth(*m_model, column));
}

/// Every column has what it needs, and the description the rest.
void CsvPanel::shareWidth()
{
    const int count = m_model->columnCount();
    if (count < 3)
        return;
    const QFontMetrics body(TypeScale::body());
    const int description = m_part == CarPart::Fuel ? -1 : descriptionColumn;
    const int number = body.horizontalAdvance(u"3000"_s) + 5 * inset;
    int left = m_view->viewport()->width() - number - widthOf(count - 1);
    m_view->setColumnWidth(0, number);
    for (int column = 1; column < count - 1; ++column) {
        if (column == description)
            continue;
        const int width = std::max(widthOf(column), body.horizontalAdvance(u"99999"_s) + 3 * inset);
        m_view->setColumnWidth(column, width);
        left -= width;
    }
    if (description > 0) {
        const int least = body.averageCharWidth() * leastDescription;
        m_view->setColumnWidth(description, std::max(least, left));
    }
    m_view->updateGeometry(); // its heading may have another height now
}

/// What a column of the grid is in the file, as a choice.
void CsvPanel::addChoices(QMenu *menu, int column)
{
    const QStringList names = m_import->fileColumns();
    const int chosen = m_import->placeOf(column);
    const QString heading = CarRows::headings(m_part, m_desk.car.unit())[column];
    menu->setTitle(CsvLines::columnIs(heading, names.value(chosen, CsvLines::notInTheFile())));
    auto *group = new QActionGroup(menu);
    for (int place = -1; place < int(names.size()); ++place) {
        QString words = place < 0 ? CsvLines::notInTheFile()
                                  : CsvLines::withExample(names[place], m_import->example(place));
        QAction *action = group->addAction(words.replace(u'&', u"&&"_s));
        action->setCheckable(true);
        action->setChecked(place == chosen);
        connect(action, &QAction::triggered, this, [this, column, place] {
            m_import->setPlace(column, place);
            start();
        });
    }
    menu->addActions(group->actions());
}

void CsvPanel::openColumns()
{
    auto *menu = named(new QMenu(this), u"carImportColumnsMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int column = 0; column < CarRows::columnCount(m_part); ++column)
        addChoices(menu->addMenu(QString()), column);
    menu->popup(m_columns->mapToGlobal(QPoint(0, -menu->sizeHint().height())));
}

void CsvPanel::openChoices(int section)
{
    const int column = section - 1;
    if (!m_import || m_work->isRunning() || column < 0 || column >= CarRows::columnCount(m_part))
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addChoices(menu, column);
    const QHeaderView *heading = m_view->horizontalHeader();
    menu->popup(heading->viewport()->mapToGlobal(
        QPoint(heading->sectionViewportPosition(section), heading->height())));
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
    m_model->show(nullptr, part, m_desk.car.unit()); // of the file before
    m_import = std::make_unique<CarCsvImport>(file.readAll(), part, m_desk.car.record(),
                                              m_desk.program.state.dateStyle, m_desk.program.clock.today());
    start();
    return true;
}

void CsvPanel::start()
{
    m_model->show(nullptr, m_part, m_desk.car.unit());
    m_work->start([this] { return m_import->step(); });
    refresh();
}

void CsvPanel::refresh()
{
    const bool isBusy = m_work->isRunning();
    m_hint->setText(m_import->isReadable() ? CsvLines::whatIsTaken(m_part, m_import->notUsed())
                                           : CsvLines::noColumns());
    setWords(isBusy ? QString() : CsvLines::toBeTaken(m_import->chosenCount(), m_import->lines().size()));
    QString why = m_desk.car.whyLocked(m_part);
    if (why.isEmpty() && isBusy)
        why = CsvLines::isBeingRead();
    if (why.isEmpty() && m_import->chosenCount() == 0)
        why = CsvLines::nothingToTake();
    setUnavailable(m_take, why);
    setUnavailable(m_columns, isBusy ? CsvLines::isBeingRead() : QString());
}

void CsvPanel::take()
{
    const QString line = CsvLines::broughtIn(m_part, m_import->chosenCount());
    CarRecord wanted = m_import->result();
    for (qsizetype row = m_desk.car.record().fuel.size(); row < wanted.fuel.size(); ++row) {
        if (m_desk.car.whyLocked(CarPart::Sheet).isEmpty())
            PresentReading::follow(wanted, wanted.fuel[row].current);
    }
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
