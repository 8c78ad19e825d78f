// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/walkpanel.h"

#include "album/window/keepinglines.h"

#include <QProgressBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int widestBar = 480;
}

WalkPanel::WalkPanel(const QString &name, const QString &title, QWidget *parent)
    : TaskPanel(name, title, parent)
    , m_bar(named(new QProgressBar(this), name + u"Progress"_s))
{
    m_bar->setAccessibleName(u"Progress"_s);
    m_bar->setMaximumWidth(widestBar);
    m_bar->setTextVisible(false);
    m_bar->hide();
}

void WalkPanel::setWalkWork(QWidget *work)
{
    auto *whole = new QWidget(this);
    auto *column = new QVBoxLayout(whole);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(work, 1);
    column->addWidget(m_bar);
    setWork(whole);
}

void WalkPanel::setLeave(QPushButton *button)
{
    m_leave = button;
    m_leaveCaption = button->text();
}

void WalkPanel::showWalk(int done, int total)
{
    m_isWalking = true;
    m_bar->setRange(0, total);
    m_bar->setValue(done);
    m_bar->show();
    m_leave->setText(u"S&top"_s);
    setWords(total > 0 ? KeepingLines::progress(done, total) : QString());
}

void WalkPanel::endWalk()
{
    m_isWalking = false;
    m_bar->hide();
    m_leave->setText(m_leaveCaption);
    setWords({});
}

void WalkPanel::leave()
{
    if (m_isWalking)
        stopWalk();
    else
        TaskPanel::leave();
}
