// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalcodepanel.h"

#include "journal/window/seallines.h"
#include "shell/controls/pastefilter.h"
#include "shell/look/theme.h"
#include "shell/pages/fixedface.h"
#include "storage/sealing/recoverycode.h"
#include "storage/sealing/secretbytes.h"

#include <QApplication>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int widest = 560;
constexpr double codePoints = 18;

/// Without the hyphens and spaces that a person sets or leaves out.
qsizetype letters(const QString &code)
{
    return std::ranges::count_if(code, [](QChar sign) { return sign.isLetterOrNumber(); });
}

/// As long as the code, and telling nothing of it.
QString hidden(QString code)
{
    for (QChar &sign : code)
        sign = sign == u'-' ? sign : QChar(u'\u2022');
    return code;
}
} // namespace

JournalCodePanel::JournalCodePanel(QWidget *parent)
    : TaskPanel(u"journalCodePanel"_s, u"Recovery Code"_s, parent)
    , m_shown(named(new QLabel(this), u"journalCode"_s))
    , m_typed(named(new QLineEdit(this), u"typedCode"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"codeRefusal"_s))
    , m_go(nullptr)
    , m_leave(nullptr)
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *words = new QLabel(SealLines::codeWords(), content);
    words->setWordWrap(true);
    words->setMaximumWidth(TypeScale::wide(widest));
    rows->addWidget(words);
    QFont fixed = FixedFace::font();
    fixed.setPointSizeF(codePoints);
    m_shown->setFont(fixed);
    m_shown->setAccessibleName(u"Recovery code"_s);
    rows->addWidget(m_shown);
    m_typed->setMaximumWidth(TypeScale::wide(widest));
    m_typed->setFont(fixed);
    new PasteFilter(m_typed, Characters::All);
    rows->addLayout(labelled(SealLines::typeTheCode(), m_typed));
    rows->addWidget(m_refusal);
    rows->addStretch(1);
    setContent(content);
    setFocusProxy(m_typed);
    QPushButton *printing = addButton(u"printJournalCode"_s, u"&Print or Save..."_s);
    m_go = addButton(u"codeKept"_s, u"&Go On"_s, ButtonKind::Main);
    m_leave = setLeaveButton(u"codeGivenUp"_s, u"C&ancel"_s);
    connect(printing, &QPushButton::clicked, this, [this] {
        m_typed->setFocus(); // behind the page, too
        emit printWanted(m_code);
    });
    connect(m_typed, &QLineEdit::textChanged, this, &JournalCodePanel::follow);
    connect(m_go, &QPushButton::clicked, this, &JournalCodePanel::kept);
    connect(m_typed, &QLineEdit::returnPressed, this, [this] {
        m_go->click();
        if (!m_code.isEmpty() && !isTyped())
            m_refusal->setText(m_typed->text().isEmpty() ? SealLines::codeNotTyped()
                                                         : SealLines::codeIsAnother());
    });
    m_holding.setSingleShot(true);
    connect(&m_holding, &QTimer::timeout, this, [this] { m_leave->setEnabled(true); });
}

void JournalCodePanel::show(const QString &code)
{
    m_code = code;
    m_typed->setText({});
    follow();
    holdLeaving();
}

void JournalCodePanel::holdLeaving()
{
    m_leave->setEnabled(false);
    m_holding.start(QApplication::doubleClickInterval());
}

bool JournalCodePanel::isTyped() const
{
    const auto typed = RecoveryCode::read(m_typed->text());
    return typed && typed == RecoveryCode::read(m_code);
}

void JournalCodePanel::follow()
{
    m_shown->setText(m_typed->text().isEmpty() ? m_code : hidden(m_code));
    setUnavailable(m_go, isTyped() ? QString() : SealLines::codeNotTyped());
    const bool isWhole = !m_code.isEmpty() && letters(m_typed->text()) >= letters(m_code);
    m_refusal->setText(isWhole && !isTyped() ? SealLines::codeIsAnother() : QString());
}

void JournalCodePanel::forget()
{
    SecretBytes::wipe(m_code);
    m_typed->setText({});
    m_shown->clear();
}

void JournalCodePanel::leave()
{
    forget();
    TaskPanel::leave();
}
