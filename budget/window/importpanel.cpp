// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/importpanel.h"

#include "budget/model/bankimport.h"
#include "budget/model/spentlines.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "shell/controls/importtable.h"
#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;

/// What a rule about lines like this one would look for: the words before the first number.
QString likelyRule(const QString &text)
{
    QStringList words;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (std::ranges::any_of(word, [](QChar character) { return character.isDigit(); }) &&
            !words.isEmpty())
            break;
        words.append(word);
    }
    return words.mid(0, 2).join(u' ');
}

} // namespace

ImportPanel::ImportPanel(const Program &program, SpentYear &year, QWidget *parent)
    : ImportPreview({.name = u"import"_s,
                     .take = u"&Take These Amounts"_s,
                     .lines = u"Lines of the bank's file"_s,
                     .filters = {u"All lines"_s, u"To be taken"_s, u"Without an item"_s, u"There already"_s,
                                 u"No spending"_s, u"Not read"_s}},
                    parent)
    , m_program(program)
    , m_year(year)
    , m_rules(addButton(u"importRules"_s, u"Rule&s..."_s, ButtonKind::Plain, Side::Left))
{
    addForm(makeForm());
    view().horizontalHeader()->setStretchLastSection(false);
    connect(m_rules, &QPushButton::clicked, this, &ImportPanel::openRules);
    connect(view().selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ImportPanel::follow);
}

/// The text keeps as much room as it can have. Lines cannot be told apart without it: in a narrow window the
/// columns behind it are scrolled to.
void ImportPanel::shareWidth()
{
    if (table().columnCount() == 0)
        return;
    const QFontMetrics body(TypeScale::body());
    int others = 0;
    const auto setWidth = [&](int column, const QString &longest, int around) {
        const int width = body.horizontalAdvance(longest) + around;
        view().setColumnWidth(column, width);
        others += width;
    };
    constexpr int text = 1 + BankImport::Text; // behind the number of the line
    setWidth(0, u"100000"_s, 5 * inset);
    setWidth(1 + BankImport::Date, u"28/11/2026"_s, 2 * inset);
    setWidth(1 + BankImport::Amount, u"99999.99"_s, 2 * inset);
    setWidth(1 + BankImport::Item, u"Building work"_s, 2 * inset);
    setWidth(table().columnCount() - 1, u"Not read: no amount"_s, 3 * inset);
    const int least = body.horizontalAdvance(u"Northern Light & Power"_s) + 2 * inset;
    view().setColumnWidth(text, std::max(least, view().viewport()->width() - others));
}

QWidget *ImportPanel::makeForm()
{
    auto *form = new QWidget(this);
    m_text = named(new QLineEdit(form), u"ruleText"_s);
    new PasteFilter(m_text, Characters::All);
    m_items = named(new QComboBox(form), u"ruleItem"_s);
    m_items->setFixedWidth(200);
    m_addRule = makeButton(u"ruleAdd"_s, u"Add &Rule"_s, form);
    m_thisLine = makeButton(u"ruleThisLine"_s, u"This Line O&nly"_s, form);
    auto *row = new QHBoxLayout(form);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addLayout(labelled(u"Text contains"_s, m_text), 1);
    row->addLayout(labelled(u"Item"_s, m_items));
    row->addWidget(m_addRule, 0, Qt::AlignBottom);
    row->addWidget(m_thisLine, 0, Qt::AlignBottom);
    connect(m_text, &QLineEdit::returnPressed, this, &ImportPanel::addRule);
    connect(m_addRule, &QPushButton::clicked, this, &ImportPanel::addRule);
    connect(m_thisLine, &QPushButton::clicked, this, &ImportPanel::takeLine);
    return form;
}

bool ImportPanel::open(const QString &path)
{
    const auto bytes = contents(path);
    if (!bytes)
        return false;
    m_items->clear();
    for (const BudgetSheet::Row &row : m_year.sheet().sheet().rows) {
        const QString item = row.item.trimmed();
        if (!item.isEmpty() && m_items->findText(item) < 0)
            m_items->addItem(item);
    }
    m_items->setCurrentIndex(-1);
    m_text->clear();
    auto import =
        std::make_unique<BankImport>(*bytes, m_year.year(), m_program.state.dateStyle, m_year.spending());
    m_import = import.get();
    setUnavailable(m_rules, m_import->rules().isEmpty() ? SpentLines::noRules() : QString());
    read(std::move(import));
    return true;
}

/// Leads to the first line of which nobody knows the item.
void ImportPanel::shown()
{
    int row = 0;
    for (int i = table().rowCount() - 1; i >= 0; --i) {
        if (m_import->lines()[table().line(i)].state == BankLine::NoItem)
            row = i;
    }
    view().selectRow(row);
}

QString ImportPanel::hint() const
{
    return m_import->isReadable() ? SpentLines::whatIsSpending(!isReading() && m_import->areAllSpent())
                                  : SpentLines::noColumns();
}

QString ImportPanel::whatBecomes() const
{
    return SpentLines::toBeTaken(m_import->chosenCount(), m_import->chosenCents(),
                                 int(m_import->lines().size()));
}

QString ImportPanel::whyReadOnly() const
{
    return m_year.whyReadOnly();
}

QString ImportPanel::nothingToTake() const
{
    return SpentLines::nothingToTake();
}

QString ImportPanel::tooLong(const QString &name) const
{
    return SpentLines::tooLong(name);
}

/// The boxes offer a rule for the line that is chosen.
void ImportPanel::follow()
{
    const int row = view().currentIndex().row();
    if (row < 0)
        return;
    const BankLine &line = m_import->lines()[table().line(row)];
    const bool isRead = line.state != BankLine::NotRead;
    m_text->setText(isRead ? likelyRule(line.text) : QString());
    m_items->setCurrentIndex(!isRead || line.item.isEmpty() ? -1 : m_items->findText(line.item));
}

QString ImportPanel::chosenItem() const
{
    return m_items->currentIndex() < 0 ? QString() : m_items->currentText();
}

void ImportPanel::addRule()
{
    const QString text = m_text->text().simplified();
    if (text.isEmpty() || chosenItem().isEmpty() || isReading()) {
        emit said(SpentLines::ruleNeedsText());
        return;
    }
    QList<ImportRule> rules = m_import->rules();
    rules.removeIf([&text](const ImportRule &rule) { return rule.text == text; });
    // The newest one counts before those that it corrects.
    rules.prepend({text, chosenItem()});
    emit said(SpentLines::ruleAdded(text, chosenItem()));
    setRules(rules);
}

void ImportPanel::setRules(const QList<ImportRule> &rules)
{
    m_import->setRules(rules);
    setUnavailable(m_rules, m_import->rules().isEmpty() ? SpentLines::noRules() : QString());
    goOn();
}

void ImportPanel::takeLine()
{
    const int row = view().currentIndex().row();
    if (row < 0 || chosenItem().isEmpty()) {
        emit said(SpentLines::ruleNeedsText());
        return;
    }
    const BankLine::State state = m_import->lines()[table().line(row)].state;
    if (state == BankLine::Incoming || state == BankLine::OtherYear || state == BankLine::NotRead) {
        emit said(SpentLines::isNoSpending());
        return;
    }
    m_import->setItem(table().line(row), chosenItem());
    table().linesChanged();
    view().setFocus();
}

/// Each rule as an entry that takes it away.
void ImportPanel::openRules()
{
    QMenu menu(this);
    menu.setObjectName(u"rulesMenu"_s);
    const QList<ImportRule> rules = m_import->rules();
    for (qsizetype at = 0; at < rules.size(); ++at) {
        const QString words = u"Remove: "_s + SpentLines::ruleAdded(rules[at].text, rules[at].item);
        connect(menu.addAction(QString(words).replace(u'&', u"&&"_s)), &QAction::triggered, this, [this, at] {
            QList<ImportRule> left = m_import->rules();
            left.removeAt(at);
            setRules(left);
        });
    }
    menu.exec(m_rules->mapToGlobal(QPoint(0, -menu.sizeHint().height())));
}

void ImportPanel::take()
{
    Spending wanted = m_year.spending();
    wanted.amounts += m_import->amounts();
    wanted.rules = m_import->rules();
    ImportPreview::leave();
    m_year.change(SpentLines::broughtIn(m_import->chosenCount(), m_import->chosenCents()), wanted);
    if (const QList<SpentAmount> amounts = m_import->amounts(); !amounts.isEmpty())
        emit taken(amounts.first());
}

/// Items that were chosen line by line would have to be chosen again.
bool ImportPanel::mayLeave()
{
    const bool isLost = std::ranges::any_of(
        m_import->lines(), [](const BankLine &line) { return line.isByHand && line.isChosen; });
    if (!isLost || isReading() || !m_year.whyReadOnly().isEmpty())
        return true;
    const Answer answer =
        m_program.dialogs.ask(this, SpentLines::takeFirst(m_import->chosenCount(), m_import->chosenCents()));
    if (answer == Answer::Yes)
        take();
    return answer == Answer::No;
}

/// Rules count the next time too, whether amounts are taken now or not.
void ImportPanel::leave()
{
    if (!mayLeave())
        return;
    ImportPreview::leave();
    Spending wanted = m_year.spending();
    wanted.rules = m_import->rules();
    m_year.change(SpentLines::rulesKept(), wanted);
}

bool ImportPanel::eventFilter(QObject *watched, QEvent *event)
{
    const int key =
        watched == &view() && event->type() == QEvent::KeyPress ? static_cast<QKeyEvent *>(event)->key() : 0;
    const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (!isEnter || !view().currentIndex().isValid())
        return ImportPreview::eventFilter(watched, event);
    m_text->setFocus();
    m_text->selectAll();
    return true;
}
