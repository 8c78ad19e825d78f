// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/searchhits.h"

#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/frame/searchmodel.h"
#include "shell/look/theme.h"

#include <QListView>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int frame = 6;
constexpr int inset = 10;
constexpr int signSize = 20;
constexpr int indent = inset + signSize + 8;
constexpr int corner = 8;
/// How much of a row its title may take where both do not fit.
constexpr double titleShare = 0.6;

/// A head with the function's sign, below it hits: the title, and quietly what stands around it.
class HitDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {200, ListRowDelegate::rowHeight()};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const auto kind = SearchModel::Kind(index.data(SearchModel::KindRole).toInt());
        const bool isChoosable = kind == SearchModel::Hit || kind == SearchModel::More;
        const bool isCurrent = isChoosable && option.state & QStyle::State_Selected;
        painter->save();
        if (isCurrent)
            painter->fillRect(option.rect, theme.accent);
        else if (isChoosable && option.state & QStyle::State_MouseOver)
            painter->fillRect(option.rect, theme.soft);
        const QRect place = option.rect.adjusted(kind == SearchModel::Note ? inset : indent, 0, -inset, 0);
        switch (kind) {
        case SearchModel::Head:
            paintSign(*painter, option.rect, index);
            write(*painter, place, TypeScale::strong(), theme.text, index.data().toString());
            break;
        case SearchModel::Hit:
            paintHit(*painter, place, index, isCurrent ? theme.onAccent : theme.text,
                     isCurrent ? theme.onAccent : theme.quiet);
            break;
        case SearchModel::More:
            write(*painter, place, TypeScale::label(), isCurrent ? theme.onAccent : theme.accent,
                  index.data().toString());
            break;
        case SearchModel::Note:
            write(*painter, place, TypeScale::label(), theme.quiet, index.data().toString());
            break;
        }
        painter->restore();
    }

private:
    static void write(QPainter &painter, const QRect &place, const QFont &font, const QColor &ink,
                      const QString &text)
    {
        painter.setFont(font);
        painter.setPen(ink);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         painter.fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    }

    static void paintSign(QPainter &painter, const QRect &row, const QModelIndex &index)
    {
        const QRect place(row.left() + inset, row.center().y() - signSize / 2, signSize, signSize);
        index.data(SearchModel::IconRole).value<QIcon>().paint(&painter, place);
    }

    static void paintHit(QPainter &painter, const QRect &place, const QModelIndex &index, const QColor &ink,
                         const QColor &quiet)
    {
        constexpr int gap = 16;
        const QString title = index.data().toString();
        const QString context = index.data(SearchModel::ContextRole).toString();
        const int titleWidth = QFontMetrics(TypeScale::body()).horizontalAdvance(title) + 1;
        const int contextWidth = QFontMetrics(TypeScale::label()).horizontalAdvance(context) + 1;
        int left = std::min(titleWidth, place.width());
        if (titleWidth + gap + contextWidth > place.width() && !context.isEmpty())
            left = std::min(titleWidth, int(place.width() * titleShare));
        write(painter, {place.left(), place.top(), left, place.height()}, TypeScale::body(), ink, title);
        write(painter, place.adjusted(left + gap, 0, 0, 0), TypeScale::label(), quiet, context);
    }
};

} // namespace

SearchHits::SearchHits(SearchModel *model, QWidget *parent)
    : QFrame(parent)
    , m_model(model)
    , m_list(named(new QListView(this), u"searchHits"_s))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(frame, frame, frame, frame);
    layout->addWidget(m_list);
    m_list->setModel(model);
    m_list->setItemDelegate(new HitDelegate(m_list));
    m_list->setAccessibleName(u"What was found"_s);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setMouseTracking(true);
    m_list->setUniformItemSizes(true);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setStyleSheet(u"QListView { background: transparent; border: 0; padding: 0; }"_s);
    m_list->viewport()->setAutoFillBackground(false);
    connect(m_list, &QListView::clicked, this, [this](const QModelIndex &index) {
        if (m_model->choosable(index.row(), m_model->rowCount()) == index.row())
            emit chosen(index.row());
    });
}

int SearchHits::currentRow() const
{
    const QModelIndex current = m_list->currentIndex();
    return current.isValid() ? m_model->choosable(current.row(), m_model->rowCount()) : -1;
}

void SearchHits::setCurrentRow(int row)
{
    m_list->setCurrentIndex(m_model->index(row));
    // The head of the first hit is seen with it.
    if (row == m_model->choosable(0, 1))
        m_list->scrollToTop();
}

void SearchHits::step(int rows)
{
    if (m_model->rowCount() == 0)
        return;
    const int direction = rows < 0 ? -1 : 1;
    const int wanted = std::clamp(currentRow() + rows, 0, m_model->rowCount() - 1);
    int row = m_model->choosable(wanted, direction);
    if (row < 0)
        row = m_model->choosable(wanted, -direction);
    if (row >= 0)
        setCurrentRow(row);
}

QSize SearchHits::sizeHint() const
{
    return {480, m_model->rowCount() * ListRowDelegate::rowHeight() + 2 * frame};
}

void SearchHits::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.edge);
    painter.setBrush(theme.panel);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}
