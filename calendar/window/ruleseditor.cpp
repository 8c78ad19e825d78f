// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/window/ruleseditor.h"

#include "calendar/model/wallcalendar.h"
#include "calendar/window/ruleform.h"
#include "calendar/window/rulelines.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int inset = 8;
constexpr int leastRows = 3;
constexpr int longestSign = 4;

} // namespace

RulesEditor::RulesEditor(const Program &program, const QString &name, Signs signs, QWidget *window,
                         QWidget *parent)
    : QWidget(parent)
    , m_model(new RulesTable(program.state.dateStyle, program.clock.today(), this))
    , m_view(named(new QTableView(this), name + u"List"_s))
    , m_none(named(makeQuietLabel({}, this), name + u"None"_s))
    , m_new(makeButton(name + u"New"_s, u"Ne&w"_s, this))
    , m_remove(makeButton(name + u"Remove"_s, u"&Remove"_s, this))
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Days that come back"_s);
    m_view->setMinimumHeight((leastRows + 1) * ListRowDelegate::rowHeight() + 2 * m_view->frameWidth());
    m_view->installEventFilter(this);
    m_view->horizontalHeader()->setStretchLastSection(false);
    m_view->horizontalHeader()->setSectionResizeMode(RulesTable::When, QHeaderView::Stretch);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(m_none);
    auto *whole = new WholeRows(m_view);
    whole->setGivesWay(true);
    column->addWidget(whole, 1);
    column->addWidget(makeForm(program, name, signs, window));
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &RulesEditor::showChosen);
    connect(m_new, &QPushButton::clicked, this, &RulesEditor::addNew);
    connect(m_remove, &QPushButton::clicked, this, &RulesEditor::removeChosen);
    setTabOrder(m_view, m_text);
    setTabOrder(m_text, m_sign);
    setTabOrder(m_sign, m_rule->firstInTab());
    setFocusProxy(m_view);
    showChosen();
}

QWidget *RulesEditor::makeForm(const Program &program, const QString &name, Signs signs, QWidget *window)
{
    m_form = new QWidget(this);
    m_text = named(new QLineEdit(m_form), name + u"Words"_s);
    m_text->setMaxLength(int(DayLine::most));
    new PasteFilter(m_text, Characters::All);
    m_sign = named(new QComboBox(m_form), name + u"Sign"_s);
    m_sign->setEditable(true);
    m_sign->lineEdit()->setMaxLength(longestSign);
    for (const QString &sign : {u""_s, u"\u25cf"_s, u"\u25a0"_s, u"\u25b2"_s, u"\u25c6"_s, u"\u2605"_s,
                                u"\u2665"_s, u"\u266a"_s, u"\u2600"_s, u"\u2713"_s})
        m_sign->addItem(sign);
    m_sign->setFixedWidth(TypeScale::wide(84));
    m_sign->setInsertPolicy(QComboBox::NoInsert);
    m_rule = new RuleForm(program, name, window, m_form);
    auto *words = new QHBoxLayout;
    words->setSpacing(12);
    words->addLayout(labelled(u"Words"_s, m_text), 1);
    auto *sign = new QWidget(m_form);
    QBoxLayout *signColumn = labelled(u"Sign"_s, m_sign);
    signColumn->setContentsMargins({});
    sign->setLayout(signColumn);
    sign->setVisible(signs == Signs::Offered);
    words->addWidget(sign);
    auto *column = new QVBoxLayout(m_form);
    column->setContentsMargins({});
    column->setSpacing(8);
    column->addLayout(words);
    column->addWidget(m_rule);
    connect(m_text, &QLineEdit::textEdited, this, &RulesEditor::take);
    connect(m_sign, &QComboBox::currentTextChanged, this, &RulesEditor::take);
    connect(m_rule, &RuleForm::changed, this, &RulesEditor::take);
    return m_form;
}

void RulesEditor::setRows(const QList<RuleRow> &rows, const QString &none, const RuleRow &first)
{
    m_first = first;
    m_none->setText(none);
    m_model->setRows(rows);
    if (!rows.isEmpty())
        m_view->selectRow(std::max(0, m_model->firstComing()));
    shareWidth();
    showChosen();
}

/// When a day comes is the longest; the others have what their words need, as far as that leaves it room.
void RulesEditor::shareWidth()
{
    const QFontMetrics body(TypeScale::body());
    int text = body.horizontalAdvance(u"Remembrance Day"_s);
    for (int row = 0; row < m_model->rowCount(); ++row)
        text =
            std::max(text, body.horizontalAdvance(m_model->index(row, RulesTable::Text).data().toString()));
    const int next = body.horizontalAdvance(u"Wed, 28 Nov 2026"_s) + 3 * inset;
    m_view->setColumnWidth(RulesTable::Next, next);
    m_view->setColumnWidth(RulesTable::Text, std::min(text + 4 * inset, m_view->width() * 3 / 10));
}

void RulesEditor::setWhyLocked(const QString &reason)
{
    m_whyLocked = reason;
    showChosen();
}

QWidget *RulesEditor::lastInTab() const
{
    return m_rule->lastInTab();
}

int RulesEditor::chosen() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? current.row() : -1;
}

void RulesEditor::choose(int row)
{
    m_view->selectRow(row);
    m_text->setFocus();
    m_text->selectAll();
}

bool RulesEditor::goToUnnamed()
{
    const auto isUnnamed = [](const RuleRow &row) { return row.text.trimmed().isEmpty(); };
    const auto found = std::ranges::find_if(rows(), isUnnamed);
    if (found == rows().end())
        return false;
    choose(int(found - rows().begin()));
    return true;
}

bool RulesEditor::goToOpenYear()
{
    return chosen() >= 0 && m_rule->goToOpenYear();
}

/// The boxes show what is chosen, to be changed there.
void RulesEditor::showChosen()
{
    const int row = chosen();
    const RuleRow &value = row < 0 ? m_first : rows()[row];
    m_isShowing = true;
    if (m_text->text() != value.text)
        m_text->setText(value.text);
    m_sign->setEditText(value.sign);
    m_rule->setRule(value.rule);
    m_isShowing = false;
    m_form->setEnabled(row >= 0 && m_whyLocked.isEmpty());
    m_none->setVisible(rows().isEmpty());
    setUnavailable(m_new, m_whyLocked);
    setUnavailable(m_remove, row < 0 ? RuleLines::chooseOne() : m_whyLocked);
}

void RulesEditor::take()
{
    const int row = chosen();
    if (m_isShowing || row < 0)
        return;
    RuleRow value = rows()[row];
    value.text = m_text->text();
    value.sign = m_sign->currentText().simplified();
    value.rule = m_rule->rule();
    if (value == rows()[row])
        return;
    m_model->setRow(row, value);
    // What is told of a rule that is none may take the room of its row.
    QMetaObject::invokeMethod(
        this, [this] { m_view->scrollTo(m_view->currentIndex()); }, Qt::QueuedConnection);
    emit changed();
}

void RulesEditor::addNew()
{
    if (!m_whyLocked.isEmpty())
        return;
    m_model->append(m_first);
    choose(int(rows().size()) - 1);
    showChosen();
    emit changed();
}

void RulesEditor::removeChosen()
{
    const int row = chosen();
    if (row < 0 || !m_whyLocked.isEmpty())
        return;
    m_model->remove(row);
    const int last = int(rows().size()) - 1;
    if (last >= 0)
        m_view->selectRow(row < last ? row : last);
    showChosen();
    m_view->setFocus();
    emit changed();
}

bool RulesEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::Resize)
        shareWidth();
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Delete) {
            removeChosen();
            return true;
        }
        if (key == Qt::Key_Home || key == Qt::Key_End) {
            m_view->selectRow(key == Qt::Key_Home ? 0 : int(rows().size()) - 1);
            return true;
        }
        if ((key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_F2) && chosen() >= 0) {
            choose(chosen());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
