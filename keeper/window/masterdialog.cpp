// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/masterdialog.h"

#include "keeper/model/keeper.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/pastefilter.h"
#include "shell/core/threadedstep.h"
#include "shell/look/theme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int dialogWidth = 420;
constexpr int buttonWidth = 104;
} // namespace

MasterDialog::MasterDialog(Keeper &keeper, const QString &title, QWidget *parent)
    : QDialog(parent)
    , m_keeper(keeper)
    , m_step(new ThreadedStep(this))
    , m_box(named(new QLineEdit(this), u"masterAgain"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"masterAgainRefusal"_s))
    , m_ok(makeButton(u"masterAgainOk"_s, u"&OK"_s, this, ButtonKind::Main))
{
    setObjectName(u"masterDialog"_s);
    setWindowTitle(title);
    setPalette(Theme::of(this).panelPalette());
    QPushButton *cancel = makeButton(u"masterAgainCancel"_s, u"&Cancel"_s, this);
    m_box->setEchoMode(QLineEdit::Password);
    new PasteFilter(m_box, Characters::All);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 24, 24, 20);
    rows->setSpacing(10);
    rows->addWidget(makeHeading(KeeperWindowLines::masterOnceMore(), this));
    rows->addLayout(labelled(KeeperWindowLines::masterCaption(), m_box));
    m_refusal->setMinimumHeight(m_refusal->fontMetrics().lineSpacing() + 2);
    rows->addWidget(m_refusal);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch(1);
    for (QPushButton *button : {m_ok, cancel}) {
        button->setMinimumWidth(buttonWidth);
        buttons->addWidget(button);
    }
    rows->addLayout(buttons);
    setFixedWidth(TypeScale::wide(dialogWidth));
    m_ok->setDefault(true);
    m_box->setFocus();
    connect(m_box, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
    connect(m_ok, &QPushButton::clicked, this, &MasterDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &MasterDialog::reject);
}

void MasterDialog::accept()
{
    if (m_step->isRunning())
        return;
    if (m_box->text().isEmpty()) {
        m_refusal->setText(KeeperWindowLines::masterMissing());
        return;
    }
    auto checking = m_keeper.checking(m_box->text(), KeySlots::Password);
    m_box->clear();
    if (!checking) {
        m_refusal->setText(KeeperWindowLines::wrongMaster());
        return;
    }
    const auto shared = std::make_shared<KeeperOpening>(std::move(*checking));
    m_box->setFocus(); // whoever types on presses no button
    m_box->setReadOnly(true);
    setUnavailable(m_ok, KeeperWindowLines::trying());
    m_step->start([shared] { shared->run(); }, [this, shared] { judge(*shared); });
}

void MasterDialog::judge(const KeeperOpening &opening)
{
    m_box->setReadOnly(false);
    setUnavailable(m_ok, {});
    if (!opening.isJudged()) {
        m_refusal->setText(KeeperWindowLines::notEnoughMemory());
    } else if (m_keeper.isRight(opening)) {
        QDialog::accept();
    } else if (++m_wrong == allowed) {
        reject();
    } else {
        m_refusal->setText(KeeperWindowLines::wrongMaster());
    }
}
