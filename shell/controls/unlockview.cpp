// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/unlockview.h"

#include "shell/controls/controls.h"
#include "shell/controls/linkbutton.h"
#include "shell/controls/pastefilter.h"
#include "shell/core/passwordlines.h"
#include "shell/look/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QProgressBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int signSize = 72;
constexpr int formWidth = 420;
} // namespace

UnlockView::UnlockView(Words words, const Names &names, QWidget *parent)
    : QWidget(parent)
    , m_said(std::move(words))
    , m_words(named(makeQuietLabel({}, this), u"unlockWords"_s))
    , m_caption(nullptr)
    , m_box(named(new QLineEdit(this), names.box))
    , m_show(named(new QCheckBox(u"Sho&w password"_s, this), u"showPassword"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"unlockRefusal"_s))
    , m_trying(named(new QProgressBar(this), u"unlockTrying"_s))
    , m_open(makeButton(names.button, u"O&pen"_s, this, ButtonKind::Main))
    , m_other(new LinkButton(u"useRecoveryCode"_s, PasswordLines::useRecoveryCode(), this))
{
    setObjectName(u"unlockView"_s);
    setFocusProxy(m_box);
    new PasteFilter(m_box, Characters::All);
    m_caption = makeFieldLabel(m_said.caption, m_box, this);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 16, 24, 18);
    rows->addStretch(2);
    // Between two springs: aligned, it would not get the height that its wrapped words take.
    auto *middle = new QHBoxLayout;
    middle->addStretch(1);
    middle->addWidget(makeForm());
    middle->addStretch(1);
    rows->addLayout(middle);
    rows->addStretch(3);
    connect(m_show, &QCheckBox::toggled, this, [this](bool isShown) {
        m_box->setEchoMode(isShown || m_isForCode ? QLineEdit::Normal : QLineEdit::Password);
    });
    connect(m_box, &QLineEdit::returnPressed, this, &UnlockView::answer);
    connect(m_box, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
    connect(m_open, &QPushButton::clicked, this, &UnlockView::answer);
    connect(m_other, &QAbstractButton::clicked, this, [this] { turn(!m_isForCode); });
    turn(false);
}

QWidget *UnlockView::makeForm()
{
    auto *form = new QWidget(this);
    form->setFixedWidth(TypeScale::wide(formWidth));
    auto *rows = new QVBoxLayout(form);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    auto *sign = new QLabel(form);
    sign->setPixmap(Icons::pixmap(m_said.icon, Theme::of(this).scheme, signSize, devicePixelRatioF()));
    rows->addWidget(sign, 0, Qt::AlignHCenter);
    auto *title = named(new QLabel(m_said.title, form), u"unlockTitle"_s);
    title->setFont(TypeScale::emptyTitle());
    rows->addWidget(title, 0, Qt::AlignHCenter);
    m_words->setWordWrap(true);
    m_words->setAlignment(Qt::AlignHCenter);
    rows->addWidget(m_words);
    rows->addSpacing(8);
    rows->addLayout(labelled(m_caption, m_box));
    rows->addWidget(m_show);
    // Always there, so that nothing moves when something is said.
    m_refusal->setMinimumHeight(m_refusal->fontMetrics().lineSpacing() + 2);
    m_refusal->setWordWrap(true);
    rows->addWidget(m_refusal);
    m_trying->setRange(0, 0);
    m_trying->setTextVisible(false);
    m_trying->setAccessibleName(m_said.trying);
    QSizePolicy policy = m_trying->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_trying->setSizePolicy(policy);
    m_trying->hide();
    rows->addWidget(m_trying);
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_other);
    foot->addStretch(1);
    m_open->setMinimumWidth(104);
    foot->addWidget(m_open);
    rows->addLayout(foot);
    for (QWidget *part : std::initializer_list<QWidget *>{m_box, m_show, m_other, m_open})
        part->setParent(form);
    setTabOrder(m_box, m_show);
    setTabOrder(m_show, m_other);
    setTabOrder(m_other, m_open);
    return form;
}

void UnlockView::start()
{
    m_box->clear();
    m_show->setChecked(false);
    m_refusal->clear();
    setTrying(false);
    turn(false);
}

void UnlockView::turn(bool isForCode)
{
    m_isForCode = isForCode;
    m_box->clear();
    m_refusal->clear();
    const QString caption = isForCode ? PasswordLines::recoveryCode() : m_said.caption;
    m_caption->setText(caption);
    m_box->setAccessibleName(caption);
    // The code stands on paper: it is copied sign by sign and must be seen.
    m_box->setEchoMode(isForCode || m_show->isChecked() ? QLineEdit::Normal : QLineEdit::Password);
    m_show->setVisible(!isForCode);
    m_words->setText(isForCode ? PasswordLines::typeRecoveryCode() : m_said.sentence);
    m_other->setText(isForCode ? m_said.usePassword : PasswordLines::useRecoveryCode());
    m_box->setFocus();
}

void UnlockView::answer()
{
    if (!m_open->isEnabled())
        return;
    if (m_box->text().isEmpty()) {
        refuse(m_isForCode ? PasswordLines::recoveryCodeMissing() : m_said.missing);
        return;
    }
    emit answered(m_box->text());
}

void UnlockView::setTrying(bool isTrying)
{
    m_trying->setVisible(isTrying);
    hold(isTrying ? m_said.trying : QString());
    setUnavailable(m_other, isTrying ? m_said.trying : QString());
    if (isTrying)
        m_refusal->clear();
}

/// The box keeps the focus and takes nothing: greyed, it would hand what is typed on to the next part, and a
/// blank there would show the password.
void UnlockView::hold(const QString &why)
{
    m_box->setFocus();
    m_box->setReadOnly(!why.isEmpty());
    m_show->setChecked(false);
    for (QWidget *part : std::initializer_list<QWidget *>{m_show, m_open})
        setUnavailable(part, why);
}

void UnlockView::refuse(const QString &line, bool isWaiting)
{
    hold(isWaiting ? line : QString());
    if (!m_isForCode)
        m_box->clear();
    m_refusal->setText(line);
}
