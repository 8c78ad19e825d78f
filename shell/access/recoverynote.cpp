// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/recoverynote.h"

#include "shell/access/passwordmessages.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/pages/fixedface.h"
#include "storage/sealing/secretbytes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Seven groups have room in two lines.
QString inLines(const QString &code)
{
    constexpr qsizetype firstLine = 20;
    return code.left(firstLine) + u'\n' + code.mid(firstLine);
}

} // namespace

RecoveryNote::RecoveryNote(QWidget *parent)
    : QWidget(parent)
    , m_shown(named(new QLabel(this), u"recoveryCodeShown"_s))
    , m_words(named(makeQuietLabel({}, this), u"recoveryWords"_s))
    , m_print(makeButton(u"printCode"_s, u"&Print Code"_s, this, ButtonKind::Main))
{
    QFont font = FixedFace::font();
    font.setPointSizeF(TypeScale::group().pointSizeF());
    m_shown->setFont(font);
    QLabel *what = makeQuietLabel(PasswordMessages::keepTheCode(), this);
    for (QLabel *wrapped : {what, m_words})
        wrapped->setWordWrap(true);
    QPushButton *done = makeButton(u"codeDone"_s, u"&Done"_s, this);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_print);
    buttons->addWidget(done);
    buttons->addStretch();
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addWidget(makeHeading(u"Recovery Code"_s, this));
    rows->addWidget(m_shown);
    rows->addWidget(what);
    rows->addLayout(buttons);
    rows->addWidget(m_words);
    connect(m_print, &QPushButton::clicked, this, &RecoveryNote::printRequested);
    connect(done, &QPushButton::clicked, this, &RecoveryNote::done);
}

void RecoveryNote::show(const QString &code)
{
    m_code = code;
    m_shown->setText(inLines(code));
    m_shown->setAccessibleName(code);
    m_words->clear();
    QWidget::show();
    m_print->setFocus();
}

void RecoveryNote::say(const QString &words)
{
    m_words->setText(words);
}

void RecoveryNote::clear()
{
    m_shown->clear();
    m_shown->setAccessibleName({});
    m_words->clear();
    SecretBytes::wipe(m_code);
}
