// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/masterpanel.h"

#include "keeper/window/windowlines.h"
#include "shell/controls/pastefilter.h"

#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int formWidth = 480;
} // namespace

MasterPanel::MasterPanel(NewPasswordForm::Strength strength, QWidget *parent)
    : TaskPanel(u"masterPanel"_s, u"Change Master Password"_s, parent)
    , m_oldPart(new QWidget(this))
    , m_old(named(new QLineEdit(m_oldPart), u"oldMaster"_s))
    , m_form(
          new NewPasswordForm(u"newMaster"_s, KeeperWindowLines::newMasterWords(), std::move(strength), this))
    , m_refusal(named(makeQuietLabel({}, this), u"masterRefusal"_s))
    , m_change(nullptr)
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *old = new QVBoxLayout(m_oldPart);
    old->setContentsMargins({});
    old->addLayout(labelled(KeeperWindowLines::oldMasterCaption(), m_old));
    m_old->setEchoMode(QLineEdit::Password);
    new PasteFilter(m_old, Characters::All);
    auto *hint = makeQuietLabel(KeeperWindowLines::oldBackupsHint(), content);
    hint->setWordWrap(true);
    m_refusal->setWordWrap(true);
    for (QWidget *part : std::initializer_list<QWidget *>{m_oldPart, m_form, m_refusal, hint}) {
        part->setMaximumWidth(formWidth);
        rows->addWidget(part);
    }
    rows->addStretch(1);
    setContent(content);
    m_change = addButton(u"changeMaster"_s, u"&Change"_s, ButtonKind::Main);
    setLeaveButton(u"masterClose"_s, u"C&lose"_s);
    connect(m_change, &QPushButton::clicked, this, &MasterPanel::choose);
    connect(m_form, &NewPasswordForm::entered, this, &MasterPanel::choose);
    connect(m_form, &NewPasswordForm::edited, m_refusal, &QLabel::clear);
    connect(m_old, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
}

void MasterPanel::start(bool isForgotten)
{
    m_isForgotten = isForgotten;
    m_oldPart->setVisible(!isForgotten);
    m_old->clear();
    m_form->start();
    m_refusal->setText(isForgotten ? KeeperWindowLines::chooseNewMaster() : QString());
    setWorking(false);
    setFocusProxy(isForgotten ? static_cast<QWidget *>(m_form) : m_old);
    setFocus();
}

void MasterPanel::choose()
{
    if (m_isWorking)
        return;
    if (!m_isForgotten && m_old->text().isEmpty()) {
        m_old->setFocus();
        m_refusal->setText(KeeperWindowLines::oldMasterMissing());
        return;
    }
    const QString refusal = m_form->refusal();
    m_refusal->setText(refusal);
    if (refusal.isEmpty())
        emit chosen(m_old->text(), m_form->password());
}

void MasterPanel::refuse(const QString &line)
{
    m_refusal->setText(line);
    m_old->setFocus();
    m_old->selectAll();
}

void MasterPanel::setWorking(bool isWorking)
{
    m_isWorking = isWorking;
    if (m_change->hasFocus())
        m_form->setFocus(); // greyed, the button would hand it on to the one that leaves
    m_form->setEditable(!isWorking);
    m_old->setReadOnly(isWorking);
    setUnavailable(m_change, isWorking ? KeeperWindowLines::making() : QString());
}

void MasterPanel::leave()
{
    if (m_isWorking)
        return;
    m_old->clear();
    m_form->start();
    TaskPanel::leave();
}
