// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/sealpanel.h"

#include "journal/window/seallines.h"
#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"

#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int widest = 560;
} // namespace

SealPanel::SealPanel(NewPasswordForm::Strength strength, QWidget *parent)
    : TaskPanel(u"sealPanel"_s, {}, parent)
    , m_words(new QLabel(this))
    , m_oldPart(new QWidget(this))
    , m_old(named(new QLineEdit(m_oldPart), u"oldJournalPassword"_s))
    , m_form(new NewPasswordForm(u"newJournalPassword"_s,
                                 {SealLines::newPassword(), SealLines::newPasswordMissing()},
                                 std::move(strength), this))
    , m_facts(named(makeQuietLabel({}, this), u"sealFacts"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"sealRefusal"_s))
    , m_go(nullptr)
    , m_close(nullptr)
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *old = new QVBoxLayout(m_oldPart);
    old->setContentsMargins({});
    old->addLayout(labelled(SealLines::passwordCaption(), m_old));
    m_old->setEchoMode(QLineEdit::Password);
    new PasteFilter(m_old, Characters::All);
    for (QLabel *words : {m_words, m_facts, m_refusal})
        words->setWordWrap(true);
    for (QWidget *part : std::initializer_list<QWidget *>{m_words, m_oldPart, m_form, m_refusal, m_facts}) {
        part->setMaximumWidth(TypeScale::wide(widest));
        rows->addWidget(part);
    }
    rows->addStretch(1);
    setContent(content);
    m_go = addButton(u"sealGo"_s, {}, ButtonKind::Main);
    m_close = setLeaveButton(u"sealClose"_s, u"C&lose"_s);
    connect(m_go, &QPushButton::clicked, this, &SealPanel::choose);
    connect(m_old, &QLineEdit::returnPressed, this, [this] {
        if (m_kind == OpenSeal)
            choose();
        else
            m_form->setFocus();
    });
    connect(m_form, &NewPasswordForm::entered, this, &SealPanel::choose);
    connect(m_form, &NewPasswordForm::edited, m_refusal, &QLabel::clear);
    connect(m_old, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
}

void SealPanel::start(Kind kind, const QStringList &unsealed)
{
    m_kind = kind;
    setTitle(SealLines::titleOf(kind));
    m_words->setText(SealLines::wordsOf(kind, unsealed));
    m_facts->setText(SealLines::factsOf(kind, unsealed));
    m_go->setText(SealLines::buttonOf(kind));
    const bool asksOld = kind == OpenSeal || kind == Change;
    m_oldPart->setVisible(asksOld);
    m_form->setVisible(kind != OpenSeal);
    forget();
    setFocusProxy(asksOld ? static_cast<QWidget *>(m_old) : m_form);
}

void SealPanel::forget()
{
    m_refusal->clear();
    m_old->setText({});
    m_form->start();
    setWorking(false);
}

void SealPanel::choose()
{
    if (m_isWorking)
        return;
    if (!m_oldPart->isHidden() && m_old->text().isEmpty()) {
        refuse(SealLines::passwordMissing());
        return;
    }
    const QString refusal = m_kind == OpenSeal ? QString() : m_form->refusal();
    m_refusal->setText(refusal);
    if (refusal.isEmpty())
        emit chosen(m_old->text(), m_kind == OpenSeal ? QString() : m_form->password());
}

void SealPanel::refuse(const QString &line)
{
    m_refusal->setText(line);
    if (!m_oldPart->isVisible())
        return;
    m_old->setFocus();
    m_old->selectAll();
}

void SealPanel::setWorking(bool isWorking)
{
    m_isWorking = isWorking;
    if (m_go->hasFocus() || m_close->hasFocus()) // greyed, a button would hand it on
        focusProxy()->setFocus();
    m_form->setEditable(!isWorking);
    m_old->setReadOnly(isWorking);
    setWords(isWorking ? SealLines::working() : QString());
    for (QPushButton *button : {m_go, m_close})
        setUnavailable(button, isWorking ? SealLines::working() : QString());
}

void SealPanel::leave()
{
    if (m_isWorking)
        return;
    forget();
    TaskPanel::leave();
}
