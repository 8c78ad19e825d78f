// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/onetimeline.h"

#include "shell/controls/controls.h"
#include "shell/core/clock.h"
#include "shell/look/theme.h"
#include "shell/pages/fixedface.h"

#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int second = 1000;
constexpr int ringSize = 34;
constexpr int soon = 5; ///< seconds: nobody types a code in less

/// "123 456": read in two halves.
QString spaced(const QString &code)
{
    return code.left(code.size() / 2) + u' ' + code.mid(code.size() / 2);
}

} // namespace

OneTimeLine::OneTimeLine(const Clock &clock, QWidget *parent)
    : QWidget(parent)
    , m_clock(clock)
    , m_code(named(new QLabel(this), u"oneTimeCode"_s))
    , m_copy(makeButton(u"copyCode"_s, u"Copy Code"_s, this))
    , m_timer(this)
{
    setObjectName(u"oneTimeLine"_s);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(ringSize + 12, 0, 0, 0);
    row->setSpacing(12);
    m_code->setTextFormat(Qt::PlainText);
    m_code->setWordWrap(true);
    row->addWidget(m_code, 1);
    row->addWidget(m_copy);
    m_timer.setInterval(second);
    connect(&m_timer, &QTimer::timeout, this, &OneTimeLine::follow);
    connect(m_copy, &QPushButton::clicked, this, [this] {
        if (m_secret)
            emit copyWanted(m_secret->code(m_clock.now().toSecsSinceEpoch()));
    });
    hide();
}

void OneTimeLine::setSecret(const QString &secret)
{
    QString problem;
    m_secret = secret.isEmpty() ? std::nullopt : OneTimeSecret::read(secret, &problem);
    m_copy->setVisible(m_secret.has_value());
    QFont font = TypeScale::label();
    if (m_secret) {
        font = FixedFace::font();
        font.setPointSizeF(TypeScale::windowTitle().pointSizeF());
        font.setWeight(QFont::DemiBold);
    }
    m_code->setFont(font);
    m_code->setText(problem);
    setVisible(!secret.isEmpty());
    follow();
}

void OneTimeLine::follow()
{
    if (!m_secret)
        return;
    const qint64 now = m_clock.now().toSecsSinceEpoch();
    m_left = m_secret->secondsLeft(now);
    if (const QString code = spaced(m_secret->code(now)); code != m_code->text())
        m_code->setText(code);
    update();
}

void OneTimeLine::paintEvent(QPaintEvent *)
{
    if (!m_secret)
        return;
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring(2, (height() - ringSize) / 2.0 + 2, ringSize - 4, ringSize - 4);
    painter.setPen(QPen(theme.line, 3));
    painter.drawEllipse(ring);
    painter.setPen(QPen(m_left <= soon ? theme.due : theme.accent, 3));
    painter.drawArc(ring, 90 * 16, 360 * 16 * m_left / m_secret->period);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.setFont(TypeScale::label());
    painter.drawText(ring, Qt::AlignCenter, QString::number(m_left));
}

void OneTimeLine::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    follow();
    m_timer.start();
}

void OneTimeLine::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_timer.stop();
}
