// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/sheetpanel.h"

#include "keeper/window/windowlines.h"
#include "shell/controls/pastefilter.h"
#include "shell/core/passwordlines.h"
#include "storage/sealing/recoverycode.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int formWidth = 560;
constexpr int textHeight = 84;
} // namespace

SheetPanel::SheetPanel(QWidget *parent)
    : TaskPanel(u"sheetPanel"_s, u"Emergency Sheet"_s, parent)
    , m_withEntries(named(new QCheckBox(this), u"sheetWithEntries"_s))
    , m_where(named(new QPlainTextEdit(this), u"sheetWhere"_s))
    , m_call(named(new QPlainTextEdit(this), u"sheetCall"_s))
    , m_code(named(new QLineEdit(this), u"sheetCode"_s))
{
    auto *content = new QWidget(this);
    content->setMaximumWidth(formWidth);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    auto *hint = new QLabel(KeeperWindowLines::sheetWords(), content);
    hint->setWordWrap(true);
    rows->addWidget(hint);
    rows->addWidget(m_withEntries);
    for (QPlainTextEdit *box : {m_where, m_call}) {
        box->setParent(content);
        box->setTabChangesFocus(true);
        box->setFixedHeight(textHeight);
    }
    rows->addLayout(labelled(u"Where the papers lie"_s, m_where));
    rows->addLayout(labelled(u"Whom to call"_s, m_call));
    m_code->setParent(content);
    new PasteFilter(m_code, Characters::All);
    rows->addLayout(labelled(PasswordLines::recoveryCode(), m_code, KeeperWindowLines::sheetCodeHint()));
    rows->addStretch(1);
    setContent(content);
    setFocusProxy(m_where);
    QPushButton *show = addButton(u"sheetShow"_s, u"Show &Page"_s, ButtonKind::Main);
    setLeaveButton(u"sheetClose"_s, u"C&lose"_s);
    connect(show, &QPushButton::clicked, this, &SheetPanel::accept);
}

void SheetPanel::start(int chosen, const QString &code)
{
    m_withEntries->setText(
        KeeperWindowLines::captionWithCount(u"&With the entries chosen in the list"_s, chosen));
    m_withEntries->setChecked(chosen > 0);
    m_withEntries->setEnabled(chosen > 0);
    m_code->setText(code);
}

SheetPanel::Words SheetPanel::words() const
{
    return {m_where->toPlainText().trimmed(), m_call->toPlainText().trimmed(), m_code->text().trimmed(),
            m_withEntries->isChecked()};
}

void SheetPanel::forget()
{
    m_where->clear();
    m_call->clear();
    m_code->clear();
}

/// A slip in the code would be found when it is too late.
void SheetPanel::accept()
{
    if (!m_code->text().trimmed().isEmpty() && !RecoveryCode::read(m_code->text())) {
        emit said(PasswordLines::recoveryCodeSlip());
        m_code->setFocus();
        return;
    }
    emit accepted();
}
