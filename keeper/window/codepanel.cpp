// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/codepanel.h"

#include "keeper/window/secretface.h"
#include "keeper/window/windowlines.h"
#include "storage/sealing/secretbytes.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

CodePanel::CodePanel(QWidget *parent)
    : TaskPanel(u"codePanel"_s, u"Recovery Code"_s, parent)
    , m_face(nullptr)
    , m_done(nullptr)
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *words = new QLabel(KeeperWindowLines::codePanelWords(), content);
    words->setWordWrap(true);
    words->setMaximumWidth(640);
    rows->addWidget(words);
    m_face = named(new SecretFace(content), u"recoveryCode"_s);
    rows->addWidget(m_face);
    auto *warning = makeQuietLabel(KeeperWindowLines::codePanelWarning(), content);
    warning->setWordWrap(true);
    warning->setMaximumWidth(640);
    rows->addWidget(warning);
    rows->addStretch(1);
    setContent(content);
    QPushButton *printing = addButton(u"printCode"_s, u"&Print..."_s);
    m_done = addButton(u"codeWritten"_s, u"I Have &Kept It"_s, ButtonKind::Main);
    setFocusProxy(m_face);
    connect(printing, &QPushButton::clicked, this, [this] { emit printWanted(m_code); });
    connect(m_done, &QPushButton::clicked, this, [this] {
        forget();
        emit left();
    });
}

void CodePanel::show(const QString &code)
{
    m_code = code;
    m_face->setSecret(code);
}

void CodePanel::forget()
{
    SecretBytes::wipe(m_code);
    m_face->setSecret({});
}

void CodePanel::leave()
{
    m_done->setFocus();
    emit said(KeeperWindowLines::codeIsShownOnce());
}
