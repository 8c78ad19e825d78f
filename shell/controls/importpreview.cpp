// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/importpreview.h"

#include "shell/controls/groupheadings.h"
#include "shell/controls/importtable.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/taborder.h"
#include "shell/controls/titleline.h"
#include "shell/core/csvcolumns.h"
#include "shell/core/importlines.h"
#include "shell/core/incomingfile.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"

#include <QActionGroup>
#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int inset = 8;
constexpr int measuredRows = 300;
constexpr int percent = 100;
constexpr int leastWide = 14; ///< characters
} // namespace

ImportPreview::ImportPreview(const Traits &traits, QWidget *parent)
    : TaskPanel(traits.name + u"Panel"_s, {}, parent)
    , m_work(new SlicedWork(this))
    , m_table(new ImportTable(this))
    , m_view(named(new QTableView(this), traits.name + u"List"_s))
    , m_hint(named(makeQuietLabel({}, this), traits.name + u"Hint"_s))
{
    makeFilter(traits);
    makeView(traits.lines);
    auto *work = new QWidget(this);
    m_rows = new QVBoxLayout(work);
    m_rows->setContentsMargins({});
    m_rows->setSpacing(12);
    m_hint->setWordWrap(true);
    m_rows->addWidget(m_hint);
    m_rows->addWidget(new WholeRows(m_view), 1);
    setWork(work);
    if (traits.hasColumns) {
        m_columns = addButton(traits.name + u"Columns"_s, u"Colu&mns..."_s, ButtonKind::Plain, Side::Left);
        connect(m_columns, &QPushButton::clicked, this, &ImportPreview::openColumns);
    }
    m_take = addButton(traits.name + u"Take"_s, traits.take, ButtonKind::Main);
    setLeaveButton(traits.name + u"Close"_s, u"C&lose"_s);
    setFocusProxy(m_view);
    connect(m_take, &QPushButton::clicked, this, &ImportPreview::take);
    connect(m_table, &ImportTable::chosenChanged, this, &ImportPreview::refresh);
    connect(m_work, &SlicedWork::progressed, this,
            [this] { emit progressed(int(m_file->progress() * percent), percent); });
    connect(m_work, &SlicedWork::finished, this, &ImportPreview::finish);
}

ImportPreview::~ImportPreview() = default;

void ImportPreview::makeFilter(const Traits &traits)
{
    if (traits.filters.isEmpty())
        return;
    m_filter = named(new QComboBox, traits.name + u"Filter"_s);
    m_filter->addItems(traits.filters);
    m_filter->setAccessibleName(u"Which lines are shown"_s);
    titleLine().addAtRight(m_filter);
    connect(m_filter, &QComboBox::currentIndexChanged, this, [this](int filter) {
        m_table->setFilter(filter);
        if (isReading())
            return;
        m_table->showLines();
        m_view->selectRow(0);
    });
}

void ImportPreview::makeView(const QString &accessibleName)
{
    m_view->setModel(m_table);
    setGridRows(m_view);
    auto *heading = new GroupHeadings(m_view);
    m_view->setHorizontalHeader(heading);
    heading->setStretchLastSection(true);
    heading->setFirstStays(false);
    m_view->setAccessibleName(accessibleName);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    connect(heading, &QHeaderView::sectionClicked, this, &ImportPreview::openChoices);
}

std::optional<QByteArray> ImportPreview::contents(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (file.size() > mostBytes) {
        emit said(tooLong(name));
        return {};
    }
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        emit said(ImportLines::cannotRead(name));
        return {};
    }
    setTitle(name);
    if (m_filter)
        m_filter->setCurrentIndex(0);
    return file.readAll();
}

void ImportPreview::read(std::unique_ptr<IncomingFile> file)
{
    const bool isSaid = m_columns && file->columns();
    QHeaderView *heading = m_view->horizontalHeader();
    heading->setSectionsClickable(isSaid);
    if (isSaid)
        heading->viewport()->setCursor(Qt::PointingHandCursor);
    else
        heading->viewport()->unsetCursor();
    if (m_columns)
        m_columns->setVisible(isSaid);
    m_table->begin(*file); // while it still has the lines of the one before
    m_file = std::move(file);
    goOn();
}

void ImportPreview::goOn()
{
    m_table->begin(*m_file);
    m_work->start([this] { return m_file->step(); });
    refresh();
}

bool ImportPreview::isReading() const
{
    return m_work->isRunning();
}

void ImportPreview::finish()
{
    emit progressed(0, 0);
    m_table->showLines();
    shareWidth();
    refresh();
    shown();
}

void ImportPreview::shown()
{
    m_view->selectRow(0);
}

void ImportPreview::addForm(QWidget *form)
{
    m_rows->insertWidget(0, form);
    TabOrder::follow(*form->layout(), m_view);
}

QString ImportPreview::whatBecomes() const
{
    return ImportLines::toBeTaken(m_file->chosenCount(), m_file->lineCount());
}

QString ImportPreview::nothingToTake() const
{
    return ImportLines::noneTicked();
}

QString ImportPreview::tooLong(const QString &name) const
{
    return ImportLines::tooLong(name);
}

void ImportPreview::refresh()
{
    const bool isBusy = isReading();
    m_hint->setText(hint());
    setWords(isBusy ? QString() : whatBecomes());
    QString why = whyReadOnly();
    if (why.isEmpty() && isBusy)
        why = ImportLines::isBeingRead();
    if (why.isEmpty() && m_file->chosenCount() == 0)
        why = nothingToTake();
    setUnavailable(m_take, why);
    if (m_columns)
        setUnavailable(m_columns, isBusy ? ImportLines::isBeingRead() : QString());
}

/// What the words of a column and the words of its heading need.
int ImportPreview::widthOf(int column) const
{
    const QFontMetrics body(TypeScale::body());
    int width = 0;
    for (int row = 0; row < std::min(m_table->rowCount(), measuredRows); ++row)
        width = std::max(width, body.horizontalAdvance(m_table->index(row, column).data().toString()));
    return std::max(width + 3 * inset, GroupHeadings::leastWidth(*m_table, column));
}

/// Every column has what it needs, and the wide one the rest.
void ImportPreview::shareWidth()
{
    const int count = m_table->columnCount();
    if (count < 3)
        return;
    const QFontMetrics body(TypeScale::body());
    const int wide = wideColumn();
    const int number = body.horizontalAdvance(u"3000"_s) + 5 * inset;
    int left = m_view->viewport()->width() - number - widthOf(count - 1);
    m_view->setColumnWidth(0, number);
    for (int column = 1; column < count - 1; ++column) {
        if (column == wide)
            continue;
        const int width = std::max(widthOf(column), body.horizontalAdvance(u"99999"_s) + 3 * inset);
        m_view->setColumnWidth(column, width);
        left -= width;
    }
    if (wide > 0)
        m_view->setColumnWidth(wide, std::max(body.averageCharWidth() * leastWide, left));
    m_view->updateGeometry(); // its heading may have another height now
}

/// What a column is in the file, as a choice.
void ImportPreview::addChoices(QMenu *menu, int column)
{
    const CsvColumns &columns = *m_file->columns();
    const QStringList names = columns.fileNames();
    const int chosen = columns.placeOf(column);
    const QString heading = m_file->headings()[column];
    menu->setTitle(ImportLines::columnIs(heading, names.value(chosen, ImportLines::notInTheFile())));
    auto *group = new QActionGroup(menu);
    for (int place = -1; place < int(names.size()); ++place) {
        QString words = place < 0 ? ImportLines::notInTheFile()
                                  : ImportLines::withExample(names[place], columns.example(place));
        QAction *action = group->addAction(words.replace(u'&', u"&&"_s));
        action->setCheckable(true);
        action->setChecked(place == chosen);
        connect(action, &QAction::triggered, this, [this, column, place] {
            m_file->setPlace(column, place);
            goOn();
        });
    }
    menu->addActions(group->actions());
}

void ImportPreview::openColumns()
{
    auto *menu = named(new QMenu(this), m_columns->objectName() + u"Menu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int column = 0; column < m_file->columns()->count(); ++column)
        addChoices(menu->addMenu(QString()), column);
    menu->popup(m_columns->mapToGlobal(QPoint(0, -menu->sizeHint().height())));
}

void ImportPreview::openChoices(int section)
{
    const int column = section - 1;
    if (!m_file || isReading() || column < 0 || column >= m_file->columns()->count())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addChoices(menu, column);
    const QHeaderView *heading = m_view->horizontalHeader();
    menu->popup(heading->viewport()->mapToGlobal(
        QPoint(heading->sectionViewportPosition(section), heading->height())));
}

void ImportPreview::leave()
{
    m_work->stop();
    TaskPanel::leave();
}

bool ImportPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view->viewport() && event->type() == QEvent::Resize)
        shareWidth();
    const bool isSpace = watched == m_view && event->type() == QEvent::KeyPress &&
                         static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space;
    if (!isSpace || !m_view->currentIndex().isValid())
        return TaskPanel::eventFilter(watched, event);
    m_table->toggle(m_view->currentIndex().row());
    return true;
}
