// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/newpasswordform.h"

#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"
#include "shell/core/passwordlines.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

NewPasswordForm::NewPasswordForm(const QString &name, Words words, Strength strength, QWidget *parent)
    : QWidget(parent)
    , m_said(std::move(words))
    , m_strength(std::move(strength))
    , m_password(named(new QLineEdit(this), name))
    , m_again(named(new QLineEdit(this), name + u"Again"_s))
    , m_show(named(new QCheckBox(u"Sho&w password"_s, this), name + u"Show"_s))
    , m_words(named(makeQuietLabel({}, this), name + u"Strength"_s))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    rows->addLayout(labelled(m_said.caption, m_password));
    rows->addLayout(labelled(PasswordLines::passwordAgain(), m_again));
    rows->addWidget(m_show);
    m_words->setWordWrap(true);
    m_words->setMinimumHeight(2 * m_words->fontMetrics().lineSpacing() + 2);
    m_words->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    rows->addWidget(m_words);
    setFocusProxy(m_password);
    for (QLineEdit *box : {m_password, m_again}) {
        box->setEchoMode(QLineEdit::Password);
        new PasteFilter(box, Characters::All);
        connect(box, &QLineEdit::textChanged, this, &NewPasswordForm::follow);
    }
    connect(m_show, &QCheckBox::toggled, this, [this](bool isShown) {
        for (QLineEdit *box : {m_password, m_again})
            box->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password);
    });
    connect(m_again, &QLineEdit::returnPressed, this, &NewPasswordForm::entered);
    follow();
}

void NewPasswordForm::start()
{
    m_password->clear();
    m_again->clear();
    m_show->setChecked(false);
    m_password->setFocus();
}

QString NewPasswordForm::password() const
{
    return m_password->text();
}

QString NewPasswordForm::refusal()
{
    if (m_password->text().isEmpty()) {
        m_password->setFocus();
        return m_said.missing;
    }
    if (m_password->text() != m_again->text()) {
        m_again->setFocus();
        m_again->selectAll();
        return PasswordLines::passwordsDiffer();
    }
    return {};
}

void NewPasswordForm::say(const QString &line)
{
    m_words->setText(line);
}

void NewPasswordForm::setEditable(bool isEditable)
{
    if (m_show->hasFocus())
        m_again->setFocus();
    for (QLineEdit *box : {m_password, m_again})
        box->setReadOnly(!isEditable); // greyed, it would hand the focus and what is typed on
    m_show->setChecked(false);
    m_show->setEnabled(isEditable);
}

void NewPasswordForm::follow()
{
    m_words->setText(m_password->text().isEmpty() ? PasswordLines::passwordHint()
                                                  : m_strength(m_password->text()));
    emit edited();
}
