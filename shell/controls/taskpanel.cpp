// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/taskpanel.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/scrollpart.h"
#include "shell/controls/titleline.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the names of a panel's parts begin with: "picture" for "picturePanel".
QString stem(const QString &name)
{
    constexpr auto ending = "Panel"_L1;
    return name.endsWith(ending) ? name.chopped(ending.size()) : name;
}

/// Words that have no room beside the buttons stand above them.
QLabel *makeToldAbove(const ButtonRow &foot, const QString &name, QWidget *parent)
{
    QLabel *told = named(makeQuietLabel({}, parent), name);
    told->setWordWrap(true);
    told->hide();
    QObject::connect(&foot, &ButtonRow::wordsLeftOut, told, [told](const QString &words) {
        told->setText(words);
        told->setVisible(!words.isEmpty());
    });
    return told;
}

} // namespace

TaskPanel::TaskPanel(const QString &name, const QString &title, QWidget *parent)
    : QWidget(parent)
    , m_title(new TitleLine(stem(name) + u"Title"_s, title, this))
    , m_rows(new QVBoxLayout(this))
    , m_foot(named(new ButtonRow(this), stem(name) + u"Buttons"_s))
{
    setObjectName(name);
    auto *low = new LowWindow(this);
    connect(low, &LowWindow::changed, this, &TaskPanel::setLow);
    TaskPanel::setLow(low->isLow());
    m_rows->addWidget(m_title);
    m_rows->addWidget(makeLine(this));
    m_rows->addWidget(makeToldAbove(*m_foot, stem(name) + u"Told"_s, this));
    m_rows->addWidget(m_foot);
}

void TaskPanel::setLow(bool isLow)
{
    m_rows->setContentsMargins(24, isLow ? 8 : 16, 24, isLow ? 10 : 18);
    m_rows->setSpacing(isLow ? 8 : 12);
}

void TaskPanel::setTitle(const QString &title)
{
    m_title->setTitle(title);
}

void TaskPanel::setContent(QWidget *content)
{
    auto *scroll = named(new ScrollPart(content, this), stem(objectName()) + u"Scroll"_s);
    setWork(scroll);
}

void TaskPanel::setWork(QWidget *work)
{
    m_rows->insertWidget(1, work, 1);
}

QPushButton *TaskPanel::addButton(const QString &name, const QString &caption, ButtonKind kind, Side side)
{
    QPushButton *button = makeButton(name, caption, m_foot, kind);
    addButton(button, side);
    return button;
}

void TaskPanel::addButton(QPushButton *button, Side side)
{
    button->setParent(m_foot);
    side == Side::Left ? m_foot->addLeft(button) : m_foot->addRight(button);
    m_foot->rearrange();
}

QPushButton *TaskPanel::setLeaveButton(const QString &name, const QString &caption, ButtonKind kind)
{
    QPushButton *button = addButton(name, caption, kind);
    connect(button, &QPushButton::clicked, this, &TaskPanel::leave);
    return button;
}

void TaskPanel::setWords(const QString &words)
{
    m_foot->setWords(words);
}

void TaskPanel::leave()
{
    emit left();
}

void TaskPanel::orderTabs()
{
    QWidget *last = nullptr;
    for (QWidget *each = nextInFocusChain(); each != this; each = each->nextInFocusChain()) {
        if (isAncestorOf(each) && !m_foot->isAncestorOf(each) && each->focusPolicy() & Qt::TabFocus)
            last = each;
    }
    if (last)
        m_foot->standBehind(last);
}

void TaskPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    orderTabs();
}

void TaskPanel::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        leave();
    else
        QWidget::keyPressEvent(event);
}
