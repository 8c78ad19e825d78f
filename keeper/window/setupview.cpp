// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/setupview.h"

#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int formWidth = 480;
} // namespace

SetUpView::SetUpView(NewPasswordForm::Strength strength, QWidget *parent)
    : QWidget(parent)
    , m_form(
          new NewPasswordForm(u"newMaster"_s, KeeperWindowLines::newMasterWords(), std::move(strength), this))
    , m_making(named(new QProgressBar(this), u"setUpMaking"_s))
    , m_make(makeButton(u"makeKeeper"_s, u"&Begin"_s, this, ButtonKind::Main))
{
    setObjectName(u"setUpView"_s);
    setFocusProxy(m_form);
    auto *form = new QWidget(this);
    form->setFixedWidth(TypeScale::wide(formWidth));
    auto *rows = new QVBoxLayout(form);
    rows->setContentsMargins({});
    rows->setSpacing(10);
    auto *title = new QLabel(KeeperWindowLines::setUpTitle(), form);
    title->setFont(TypeScale::emptyTitle());
    rows->addWidget(title);
    for (const QString &line : {KeeperWindowLines::setUpWords(), KeeperWindowLines::setUpWarning()}) {
        auto *words = new QLabel(line, form);
        words->setWordWrap(true);
        rows->addWidget(words);
    }
    rows->addSpacing(4);
    rows->addWidget(m_form);
    m_making->setRange(0, 0);
    m_making->setTextVisible(false);
    m_making->setAccessibleName(KeeperWindowLines::making());
    QSizePolicy policy = m_making->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_making->setSizePolicy(policy);
    m_making->hide();
    rows->addWidget(m_making);
    m_make->setMinimumWidth(104);
    rows->addWidget(m_make, 0, Qt::AlignRight);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(24, 16, 24, 18);
    all->addStretch(2);
    auto *middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(form);
    middle->addStretch(1);
    all->addLayout(middle);
    all->addStretch(3);
    connect(m_make, &QPushButton::clicked, this, &SetUpView::choose);
    connect(m_form, &NewPasswordForm::entered, this, &SetUpView::choose);
}

void SetUpView::start()
{
    m_form->start();
    setMaking(false);
}

void SetUpView::choose()
{
    if (!m_make->isEnabled())
        return;
    const QString refusal = m_form->refusal();
    emit said(refusal);
    if (!refusal.isEmpty())
        m_form->say(refusal);
    if (refusal.isEmpty())
        emit chosen(m_form->password());
}

void SetUpView::setMaking(bool isMaking)
{
    m_making->setVisible(isMaking);
    if (m_make->hasFocus())
        m_form->setFocus();
    m_form->setEditable(!isMaking);
    setUnavailable(m_make, isMaking ? KeeperWindowLines::making() : QString());
}
