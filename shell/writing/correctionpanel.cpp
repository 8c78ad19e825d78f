// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/correctionpanel.h"

#include "shell/controls/listrowdelegate.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/searchbox.h"
#include "shell/look/theme.h"
#include "shell/writing/correctionfile.h"
#include "shell/writing/writing.h"
#include "shell/writing/writinglines.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widest = 640;

std::vector<TableColumn<Correction>> columns()
{
    return {{u"What Is Typed"_s, Qt::AlignLeft, &Correction::wrong},
            {u"What Is Meant"_s, Qt::AlignLeft, &Correction::right}};
}

} // namespace

CorrectionPanel::CorrectionPanel(Writing &writing, QWidget *parent)
    : TaskPanel(u"correctionTable"_s, u"Correction Table"_s, parent)
    , m_writing(writing)
    , m_search(new SearchBox(u"correctionSearch"_s, u"Search the table"_s,
                             u"Finds in both columns what is typed here"_s, this))
    , m_rows(new RowsModel<Correction>(columns(), this))
    , m_view(named(new QTableView(this), u"correctionList"_s))
    , m_wrong(named(new FieldBox(this), u"correctionWrong"_s))
    , m_right(named(new FieldBox(this), u"correctionRight"_s))
{
    setContent(makeWork());
    makeButtons();
    setFocusProxy(m_search);
    connect(this, &TaskPanel::left, this, &CorrectionPanel::takeBackRefusal);
    connect(m_search, &QLineEdit::textChanged, this, [this] { showRows(chosen()); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &CorrectionPanel::showChosen);
    for (FieldBox *box : {m_wrong, m_right}) {
        box->setByteLimit(CorrectionFile::longest);
        connect(box, &FieldBox::refused, this, &CorrectionPanel::said);
        connect(box, &QLineEdit::textChanged, this, &CorrectionPanel::refreshButtons);
        connect(box, &QLineEdit::textChanged, this, &CorrectionPanel::takeBackRefusal);
        connect(box, &QLineEdit::returnPressed, this, &CorrectionPanel::enter);
    }
}

QWidget *CorrectionPanel::makeWork()
{
    m_view->setModel(m_rows);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Corrections"_s);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_view->installEventFilter(this);
    m_search->setTarget(m_view);
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    QLabel *words = makeQuietLabel(WritingLines::tableWords(), work);
    words->setWordWrap(true);
    auto *boxes = new QHBoxLayout;
    boxes->setSpacing(12);
    boxes->addLayout(labelled(u"What Is Typed"_s, m_wrong), 1);
    boxes->addLayout(labelled(u"What Is Meant"_s, m_right), 1);
    auto *list = new WholeRows(m_view);
    list->setGivesWay(true);
    for (QWidget *part : {static_cast<QWidget *>(m_search), static_cast<QWidget *>(list)})
        part->setMaximumWidth(TypeScale::wide(widest));
    for (QWidget *part : {m_wrong, m_right})
        part->setMaximumWidth(TypeScale::wide(widest / 2) - 6);
    boxes->addStretch();
    rows->addWidget(words);
    rows->addWidget(m_search);
    rows->addWidget(list, 1);
    rows->addLayout(boxes);
    return work;
}

void CorrectionPanel::makeButtons()
{
    m_buttons.restore =
        addButton(u"correctionRestore"_s, u"&Restore the First Table"_s, ButtonKind::Plain, Side::Left);
    m_buttons.undo = addButton(u"correctionUndo"_s, u"&Undo"_s, ButtonKind::Plain, Side::Left);
    m_buttons.remove = addButton(u"correctionRemove"_s, u"Re&move"_s);
    m_buttons.change = addButton(u"correctionChange"_s, u"&Change"_s);
    m_buttons.add = addButton(u"correctionAdd"_s, u"&Add"_s, ButtonKind::Main);
    setLeaveButton(u"correctionClose"_s, u"C&lose"_s);
    connect(m_buttons.restore, &QPushButton::clicked, this, &CorrectionPanel::restore);
    connect(m_buttons.undo, &QPushButton::clicked, this, &CorrectionPanel::undo);
    connect(m_buttons.remove, &QPushButton::clicked, this, &CorrectionPanel::remove);
    connect(m_buttons.change, &QPushButton::clicked, this, &CorrectionPanel::change);
    connect(m_buttons.add, &QPushButton::clicked, this, &CorrectionPanel::add);
}

void CorrectionPanel::open()
{
    m_before.clear();
    m_search->clear();
    showRows();
}

/// The rows that hold what is searched, with the one of the word `chosen` chosen.
void CorrectionPanel::showRows(const QString &chosen)
{
    std::vector<Correction> pairs = m_writing.corrections().pairs();
    const QString sought = m_search->text().trimmed();
    std::erase_if(pairs, [&sought](const Correction &pair) {
        return !pair.wrong.contains(sought, Qt::CaseInsensitive) &&
               !pair.right.contains(sought, Qt::CaseInsensitive);
    });
    int row = -1;
    for (std::size_t i = 0; i < pairs.size(); ++i)
        row = pairs[i].wrong == chosen ? int(i) : row;
    m_rows->setRows(std::move(pairs));
    m_view->clearSelection();
    if (row >= 0)
        m_view->selectRow(row);
    refreshButtons();
}

void CorrectionPanel::showChosen()
{
    const int row = m_view->currentIndex().row();
    if (row >= 0) {
        m_wrong->setText(m_rows->row(row).wrong);
        m_right->setText(m_rows->row(row).right);
    }
    refreshButtons();
}

QString CorrectionPanel::chosen() const
{
    const int row = m_view->currentIndex().row();
    return row >= 0 ? m_rows->row(row).wrong : QString();
}

QString CorrectionPanel::wrong() const
{
    return m_wrong->text().trimmed();
}

QString CorrectionPanel::right() const
{
    return m_right->text().trimmed();
}

QString CorrectionPanel::whyNoPair() const
{
    if (wrong().isEmpty() || right().isEmpty())
        return WritingLines::correctionMissing();
    if (!WordBreaks::isWord(wrong()))
        return WritingLines::oneWordOnly();
    return wrong() == right() ? WritingLines::sameWord() : QString();
}

QString CorrectionPanel::whyNotAdd() const
{
    const QString why = whyNoPair();
    return why.isEmpty() && m_writing.corrections().has(wrong()) ? WritingLines::isInTable(wrong()) : why;
}

QString CorrectionPanel::whyNotChange() const
{
    if (chosen().isEmpty())
        return WritingLines::noCorrectionChosen();
    const bool isOther = chosen().compare(wrong(), Qt::CaseInsensitive) != 0;
    return isOther ? whyNotAdd() : whyNoPair();
}

void CorrectionPanel::refreshButtons()
{
    const QString &locked = m_writing.whyReadOnly();
    const auto unless = [&locked](QPushButton *button, const QString &why) {
        setUnavailable(button, locked.isEmpty() ? why : locked);
    };
    unless(m_buttons.add, whyNotAdd());
    unless(m_buttons.change, whyNotChange());
    unless(m_buttons.remove, chosen().isEmpty() ? WritingLines::noCorrectionChosen() : QString());
    const bool isFirst = m_writing.corrections() == Corrections::firstTable();
    unless(m_buttons.restore, isFirst ? WritingLines::isFirstTable() : QString());
    unless(m_buttons.undo, m_before.empty() ? WritingLines::nothingToUndo() : QString());
}

bool CorrectionPanel::save(const Corrections &table, const QString &chosen)
{
    const Corrections before = m_writing.corrections();
    if (!m_writing.setCorrections(table)) {
        emit said(m_writing.mayCorrectionsBeSaved() ? WritingLines::tableNotSaved()
                                                    : WritingLines::tableNotOurs());
        return false;
    }
    m_before.push_back(before);
    showRows(chosen);
    return true;
}

void CorrectionPanel::add()
{
    Corrections table = m_writing.corrections();
    table.set(wrong(), right());
    if (!save(table, {}))
        return;
    m_wrong->clear();
    m_right->clear();
    m_wrong->setFocus();
}

void CorrectionPanel::change()
{
    Corrections table = m_writing.corrections();
    table.remove(chosen());
    table.set(wrong(), right());
    std::ignore = save(table, wrong());
}

void CorrectionPanel::remove()
{
    if (!m_buttons.remove->isEnabled())
        return;
    const int row = m_view->currentIndex().row();
    Corrections table = m_writing.corrections();
    table.remove(chosen());
    if (save(table, {}))
        m_view->selectRow(std::min(row, m_rows->rowCount() - 1));
}

void CorrectionPanel::restore()
{
    if (save(Corrections::firstTable(), {}))
        emit said(WritingLines::tableRestored());
}

void CorrectionPanel::undo()
{
    const Corrections before = m_before.back();
    if (!save(before, chosen()))
        return;
    m_before.resize(m_before.size() - 2);
    refreshButtons();
}

/// Enter in a box: what is new is added, the chosen row changed.
void CorrectionPanel::enter()
{
    if (m_buttons.add->isEnabled()) {
        add();
    } else if (m_buttons.change->isEnabled()) {
        change();
    } else {
        m_isRefused = true;
        emit said(m_buttons.add->statusTip());
    }
}

/// What was said holds no longer.
void CorrectionPanel::takeBackRefusal()
{
    if (std::exchange(m_isRefused, false))
        emit said({});
}

bool CorrectionPanel::eventFilter(QObject *watched, QEvent *event)
{
    const bool isDelete = watched == m_view && event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete;
    if (!isDelete || chosen().isEmpty())
        return TaskPanel::eventFilter(watched, event);
    remove();
    return true;
}
