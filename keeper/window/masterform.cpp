// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/masterform.h"

#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"

#include <QCheckBox>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

MasterForm::MasterForm(Strength strength, QWidget *parent)
    : QWidget(parent)
    , m_strength(std::move(strength))
    , m_password(named(new QLineEdit(this), u"newMaster"_s))
    , m_again(named(new QLineEdit(this), u"newMasterAgain"_s))
    , m_show(named(new QCheckBox(u"&Show password"_s, this), u"showNewMaster"_s))
    , m_words(named(makeQuietLabel({}, this), u"masterStrength"_s))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    rows->addLayout(labelled(KeeperWindowLines::masterCaption(), m_password));
    rows->addLayout(labelled(KeeperWindowLines::masterAgainCaption(), m_again));
    rows->addWidget(m_show);
    m_words->setWordWrap(true);
    m_words->setMinimumHeight(2 * m_words->fontMetrics().lineSpacing() + 2);
    m_words->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    rows->addWidget(m_words);
    setFocusProxy(m_password);
    for (QLineEdit *box : {m_password, m_again}) {
        box->setEchoMode(QLineEdit::Password);
        new PasteFilter(box, Characters::All);
        connect(box, &QLineEdit::textChanged, this, &MasterForm::follow);
    }
    connect(m_show, &QCheckBox::toggled, this, [this](bool isShown) {
        for (QLineEdit *box : {m_password, m_again})
            box->setEchoMode(isShown ? QLineEdit::Normal : QLineEdit::Password);
    });
    connect(m_again, &QLineEdit::returnPressed, this, &MasterForm::entered);
    follow();
}

void MasterForm::start()
{
    m_password->clear();
    m_again->clear();
    m_show->setChecked(false);
    m_password->setFocus();
}

QString MasterForm::password() const
{
    return m_password->text();
}

QString MasterForm::refusal()
{
    if (m_password->text().isEmpty()) {
        m_password->setFocus();
        return KeeperWindowLines::newMasterMissing();
    }
    if (m_password->text() != m_again->text()) {
        m_again->setFocus();
        m_again->selectAll();
        return KeeperWindowLines::mastersDiffer();
    }
    return {};
}

void MasterForm::setEditable(bool isEditable)
{
    for (QWidget *part : std::initializer_list<QWidget *>{m_password, m_again, m_show})
        part->setEnabled(isEditable);
}

void MasterForm::follow()
{
    m_words->setText(m_password->text().isEmpty() ? KeeperWindowLines::masterHint()
                                                  : m_strength(m_password->text()));
    emit edited();
}
