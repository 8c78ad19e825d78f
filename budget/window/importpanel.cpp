// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/importpanel.h"

#include "budget/model/spentlines.h"
#include "budget/window/importmodel.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/titleline.h"
#include "shell/core/slicedwork.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;
constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;
constexpr int percent = 100;

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
    : TaskPanel(u"importPanel"_s, {}, parent)
    , m_program(program)
    , m_year(year)
    , m_work(new SlicedWork(this))
    , m_model(new ImportModel(program.state.dateStyle, this))
    , m_filter(named(new QComboBox, u"importFilter"_s))
    , m_hint(named(makeQuietLabel({}, this), u"importHint"_s))
    , m_view(named(new QTableView(this), u"importList"_s))
{
    m_filter->addItems({u"All lines"_s, u"To be taken"_s, u"Without an item"_s, u"There already"_s,
                        u"No spending"_s, u"Not read"_s});
    m_filter->setAccessibleName(u"Which lines are shown"_s);
    titleLine().addAtRight(m_filter);
    makeView();
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    rows->addWidget(makeForm());
    rows->addWidget(m_hint);
    rows->addWidget(new WholeRows(m_view), 1);
    setWork(work);
    makeButtons();
    setFocusProxy(m_view);
    connect(m_filter, &QComboBox::currentIndexChanged, this,
            [this](int filter) { m_model->setFilter(ImportModel::Filter(filter)); });
    connect(m_model, &ImportModel::chosenChanged, this, &ImportPanel::refresh);
    connect(m_work, &SlicedWork::progressed, this,
            [this] { emit progressed(int(m_import->progress() * percent), percent); });
    connect(m_work, &SlicedWork::finished, this, &ImportPanel::finish);
}

void ImportPanel::makeView()
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Lines of the bank's file"_s);
    const QFontMetrics body(TypeScale::body());
    QHeaderView *head = m_view->horizontalHeader();
    head->setStretchLastSection(false);
    // The text keeps as much room as it can have.
    const auto setWidth = [&](int column, const QString &longest, int around) {
        m_view->setColumnWidth(column, body.horizontalAdvance(longest) + around);
    };
    setWidth(ImportModel::Number, u"100000"_s, 5 * inset);
    setWidth(ImportModel::Date, u"28/11/2026"_s, 2 * inset);
    setWidth(ImportModel::Amount, u"99999.99"_s, 2 * inset);
    setWidth(ImportModel::Item, u"Building work"_s, 2 * inset);
    setWidth(ImportModel::What, u"Not read: no amount"_s, 3 * inset);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &ImportPanel::follow);
}

/// Lines cannot be told apart without their texts: in a narrow window the columns behind the text are
/// scrolled to.
void ImportPanel::shareWidth()
{
    int others = 0;
    for (int column = 0; column < m_model->columnCount(); ++column)
        others += column == ImportModel::Text ? 0 : m_view->columnWidth(column);
    const int least =
        QFontMetrics(TypeScale::body()).horizontalAdvance(u"Northern Light & Power"_s) + 2 * inset;
    m_view->setColumnWidth(ImportModel::Text, std::max(least, m_view->viewport()->width() - others));
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

void ImportPanel::makeButtons()
{
    m_rules = addButton(u"importRules"_s, u"Rule&s..."_s, ButtonKind::Plain, Side::Left);
    m_take = addButton(u"importTake"_s, u"&Take These Amounts"_s, ButtonKind::Main);
    setLeaveButton(u"importClose"_s, u"C&lose"_s);
    connect(m_rules, &QPushButton::clicked, this, &ImportPanel::openRules);
    connect(m_take, &QPushButton::clicked, this, &ImportPanel::take);
}

bool ImportPanel::open(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (file.size() > mostBytes) {
        emit said(SpentLines::tooLong(name));
        return false;
    }
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        emit said(SpentLines::cannotRead(name));
        return false;
    }
    setTitle(name);
    m_model->show(nullptr);
    m_import = std::make_unique<BankImport>(file.readAll(), m_year.year(), m_program.state.dateStyle,
                                            m_year.spending());
    m_filter->setCurrentIndex(0);
    m_items->clear();
    for (const BudgetSheet::Row &row : m_year.sheet().sheet().rows) {
        const QString item = row.item.trimmed();
        if (!item.isEmpty() && m_items->findText(item) < 0)
            m_items->addItem(item);
    }
    m_items->setCurrentIndex(-1);
    m_text->clear();
    work();
    return true;
}

void ImportPanel::work()
{
    m_model->show(nullptr);
    m_work->start([this] { return m_import->step(); });
    refresh();
}

void ImportPanel::finish()
{
    emit progressed(0, 0);
    m_model->show(m_import.get());
    refresh();
    m_view->selectRow(m_model->firstWithoutItem());
}

void ImportPanel::refresh()
{
    const bool isBusy = m_work->isRunning();
    m_hint->setText(m_import->isReadable() ? SpentLines::whatIsSpending(!isBusy && m_import->areAllSpent())
                                           : SpentLines::noColumns());
    setWords(isBusy ? QString()
                    : SpentLines::toBeTaken(m_import->chosenCount(), m_import->chosenCents(),
                                            int(m_import->lines().size())));
    QString why = m_year.whyReadOnly();
    if (why.isEmpty() && isBusy)
        why = SpentLines::isBeingRead();
    if (why.isEmpty() && m_import->chosenCount() == 0)
        why = SpentLines::nothingToTake();
    setUnavailable(m_take, why);
    setUnavailable(m_rules, m_import->rules().isEmpty() ? SpentLines::noRules() : QString());
}

/// The boxes offer a rule for the line that is chosen.
void ImportPanel::follow()
{
    const int row = m_view->currentIndex().row();
    if (row < 0)
        return;
    const BankLine &line = m_import->lines()[m_model->line(row)];
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
    if (text.isEmpty() || chosenItem().isEmpty() || m_work->isRunning()) {
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
    work();
}

void ImportPanel::takeLine()
{
    const int row = m_view->currentIndex().row();
    if (row < 0 || chosenItem().isEmpty()) {
        emit said(SpentLines::ruleNeedsText());
        return;
    }
    const BankLine::State state = m_import->lines()[m_model->line(row)].state;
    if (state == BankLine::Incoming || state == BankLine::OtherYear || state == BankLine::NotRead) {
        emit said(SpentLines::isNoSpending());
        return;
    }
    m_model->setItem(row, chosenItem());
    m_view->setFocus();
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
    goHome();
    m_year.change(SpentLines::broughtIn(m_import->chosenCount(), m_import->chosenCents()), wanted);
    if (const QList<SpentAmount> amounts = m_import->amounts(); !amounts.isEmpty())
        emit taken(amounts.first());
}

void ImportPanel::goHome()
{
    m_work->stop();
    TaskPanel::leave();
}

/// Items that were chosen line by line would have to be chosen again.
bool ImportPanel::mayLeave()
{
    const bool isLost = std::ranges::any_of(
        m_import->lines(), [](const BankLine &line) { return line.isByHand && line.isChosen; });
    if (!isLost || m_work->isRunning() || !m_year.whyReadOnly().isEmpty())
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
    goHome();
    Spending wanted = m_year.spending();
    wanted.rules = m_import->rules();
    m_year.change(SpentLines::rulesKept(), wanted);
}

bool ImportPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view->viewport() && event->type() == QEvent::Resize)
        shareWidth();
    if (watched == m_view && event->type() == QEvent::KeyPress && m_view->currentIndex().isValid()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Space) {
            m_model->toggle(m_view->currentIndex().row());
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            m_text->setFocus();
            m_text->selectAll();
            return true;
        }
    }
    return TaskPanel::eventFilter(watched, event);
}
