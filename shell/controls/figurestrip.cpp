// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/figurestrip.h"

#include "shell/controls/controls.h"
#include "shell/controls/lowwindow.h"
#include "shell/look/theme.h"

#include <QGridLayout>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr double corner = 8;
constexpr int signSize = 20;
} // namespace

FigureStrip::FigureStrip(const QString &name, QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    setObjectName(name);
    setPalette(Theme::of(this).panelPalette()); // not the panel's ink: it has a ground of its own
    m_grid->setHorizontalSpacing(16);
    auto *low = new LowWindow(this);
    connect(low, &LowWindow::changed, this, &FigureStrip::setLow);
    setLow(low->isLow());
}

FigureStrip::Labels FigureStrip::make()
{
    auto *place = new QWidget(this);
    const Labels labels{place, new ElidedLabel(place), new QLabel(place), new ElidedLabel(place)};
    labels.caption->setFont(TypeScale::label());
    labels.caption->setForegroundRole(ThemeRole::quiet);
    labels.value->setFont(TypeScale::cardTitle());
    auto *rows = new QVBoxLayout(place);
    rows->setContentsMargins({});
    rows->setSpacing(1);
    rows->addWidget(labels.caption);
    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    row->addWidget(labels.sign);
    row->addWidget(labels.value, 1);
    rows->addLayout(row);
    // Without a factor: no caption is cut while another has room to spare.
    for (QLabel *label : {labels.caption, labels.value})
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    place->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return labels;
}

void FigureStrip::setFigures(const QList<Figure> &figures)
{
    while (m_labels.size() < figures.size())
        m_labels.append(make());
    for (qsizetype i = 0; i < m_labels.size(); ++i) {
        m_labels[i].place->setVisible(i < figures.size());
        if (i >= figures.size())
            continue;
        m_labels[i].caption->setText(figures[i].caption);
        const bool hasSign = !figures[i].sign.isEmpty();
        m_labels[i].sign->setVisible(hasSign);
        if (hasSign)
            m_labels[i].sign->setPixmap(
                Icons::pixmap(figures[i].sign, Theme::of(this).scheme, signSize, devicePixelRatioF()));
        m_labels[i].value->setText(figures[i].value);
        m_labels[i].value->setAccessibleName(figures[i].caption + u": "_s + figures[i].value);
        // Captions are cut where there is too little room, figures never.
        const QFontMetrics metrics(TypeScale::cardTitle());
        m_labels[i].value->setMinimumWidth(metrics.horizontalAdvance(figures[i].value) + 2);
    }
    m_count = figures.size();
    m_perRow = 0;
    arrange();
    setVisible(!figures.isEmpty());
}

/// Side by side where every caption fits whole.
qsizetype FigureStrip::perRow() const
{
    if (m_count < 3)
        return m_count;
    const QMargins margins = m_grid->contentsMargins();
    int wanted = margins.left() + margins.right() + int(m_count - 1) * m_grid->horizontalSpacing();
    for (qsizetype i = 0; i < m_count; ++i)
        wanted += m_labels[i].place->sizeHint().width();
    return wanted <= width() ? m_count : (m_count + 1) / 2;
}

void FigureStrip::arrange()
{
    const qsizetype perRow = this->perRow();
    if (perRow == m_perRow)
        return;
    m_perRow = perRow;
    for (const Labels &labels : m_labels)
        m_grid->removeWidget(labels.place);
    for (qsizetype i = 0; i < m_count; ++i)
        m_grid->addWidget(m_labels[i].place, int(i / perRow), int(i % perRow));
}

void FigureStrip::setLow(bool isLow)
{
    m_grid->setContentsMargins(16, isLow ? 4 : 7, 16, isLow ? 5 : 8);
    m_grid->setVerticalSpacing(isLow ? 3 : 6);
}

void FigureStrip::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    arrange();
}

void FigureStrip::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.line);
    painter.setBrush(theme.head);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}
