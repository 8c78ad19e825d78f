// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturegallery.h"

#include "shell/look/theme.h"
#include "shell/pictures/picturelines.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Enough for a tile of a large window on a fine screen.
constexpr QSize tilePixels(640, 480);
constexpr int leastTileHeight = 120;
constexpr int gap = 6;
constexpr int matWidth = 6;
constexpr int nameGap = 4;

} // namespace

/// The pictures of one page.
class PictureGalleryModel final : public QAbstractListModel
{
public:
    enum class State { Waiting, Seen, Missing };
    using QAbstractListModel::QAbstractListModel;

    const std::vector<NamedPicture> &pictures() const { return m_pictures; }
    State state(int index) const { return m_states[std::size_t(index)]; }

    /// The picture in this size; made when it is first painted.
    const QImage &scaled(int index, QSize dots) const
    {
        QImage &image = m_scaled[std::size_t(index)];
        if (image.size() != dots)
            image =
                m_images[std::size_t(index)].scaled(dots, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        return image;
    }
    QSize shape(int index) const { return m_images[std::size_t(index)].size(); }

    void setPictures(std::vector<NamedPicture> pictures)
    {
        beginResetModel();
        m_pictures = std::move(pictures);
        m_images.assign(m_pictures.size(), {});
        m_scaled.assign(m_pictures.size(), {});
        m_states.assign(m_pictures.size(), State::Waiting);
        endResetModel();
    }

    void setImage(int index, const QImage &image)
    {
        m_images[std::size_t(index)] = image;
        m_states[std::size_t(index)] = image.isNull() ? State::Missing : State::Seen;
        emit dataChanged(this->index(index), this->index(index));
    }

    int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : int(m_pictures.size());
    }

    QVariant data(const QModelIndex &index, int role) const override
    {
        if (!index.isValid() || index.row() >= rowCount())
            return {};
        const auto at = std::size_t(index.row());
        const bool isName = role == Qt::DisplayRole || role == Qt::ToolTipRole;
        return isName ? QVariant(m_pictures[at].name) : QVariant();
    }

private:
    std::vector<NamedPicture> m_pictures;
    std::vector<QImage> m_images;
    mutable std::vector<QImage> m_scaled;
    std::vector<State> m_states;
};

namespace {

using State = PictureGalleryModel::State;

/// A picture on its mat with the name under it; a dashed frame where there is none.
class TileDelegate final : public QStyledItemDelegate
{
public:
    TileDelegate(const PictureGalleryModel &model, QListView *view)
        : QStyledItemDelegate(view)
        , m_model(model)
        , m_view(view)
    {}

    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return m_view->gridSize();
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        const Theme &theme = Theme::of(option.widget);
        const QRect tile = option.rect.adjusted(gap, gap, -gap, -gap);
        const int nameHeight = option.fontMetrics.height() + nameGap;
        const QRect room = tile.adjusted(0, 0, 0, -nameHeight);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const bool isCurrent = option.state & QStyle::State_Selected;
        if (isCurrent)
            drawCurrent(*painter, option, theme);
        if (m_model.state(index.row()) == State::Seen)
            drawPicture(*painter, room, index.row(), theme);
        else
            drawEmpty(*painter, room, m_model.state(index.row()), theme);
        painter->setPen(theme.text);
        painter->setFont(option.font);
        const QRect name(tile.left(), room.bottom() + 1, tile.width(), nameHeight);
        painter->drawText(
            name, Qt::AlignHCenter | Qt::AlignBottom,
            option.fontMetrics.elidedText(index.data().toString(), Qt::ElideRight, tile.width()));
        painter->restore();
    }

private:
    static void drawCurrent(QPainter &painter, const QStyleOptionViewItem &option, const Theme &theme)
    {
        const bool hasFocus = option.widget && option.widget->hasFocus();
        painter.setPen(hasFocus ? QPen(theme.accent, 2) : QPen(Qt::NoPen));
        painter.setBrush(theme.soft);
        painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), 6, 6);
    }

    void drawPicture(QPainter &painter, const QRect &room, int index, const Theme &theme) const
    {
        const QSize inside = room.size() - QSize(2 * matWidth, 2 * matWidth);
        const QSize size = m_model.shape(index).scaled(inside.expandedTo({1, 1}), Qt::KeepAspectRatio);
        QRect place(QPoint(), size);
        place.moveCenter(room.center());
        painter.setPen(theme.line);
        painter.setBrush(theme.scheme == Icons::Scheme::Dark ? theme.field : QColor(Qt::white));
        painter.drawRoundedRect(
            QRectF(place).adjusted(-matWidth + .5, -matWidth + .5, matWidth - .5, matWidth - .5), 4, 4);
        const QSize dots = (QSizeF(size) * painter.device()->devicePixelRatioF()).toSize().expandedTo({1, 1});
        painter.drawImage(place, m_model.scaled(index, dots));
    }

    static void drawEmpty(QPainter &painter, const QRect &room, State state, const Theme &theme)
    {
        QRect place(QPoint(), QSize(std::min(room.width(), room.height() * 4 / 3), room.height()));
        place.moveCenter(room.center());
        QPen pen(theme.edge, 1, Qt::CustomDashLine);
        pen.setDashPattern({3, 3});
        painter.setPen(pen);
        painter.setBrush(theme.locked);
        painter.drawRoundedRect(QRectF(place).adjusted(.5, .5, -.5, -.5), 4, 4);
        painter.setPen(theme.quiet);
        painter.setFont(TypeScale::label());
        painter.drawText(place.adjusted(4, 4, -4, -4), Qt::AlignCenter | Qt::TextWordWrap,
                         state == State::Waiting ? PictureLines::loading() : PictureLines::pictureNotFound());
    }

    const PictureGalleryModel &m_model;
    QListView *m_view;
};

} // namespace

PictureGallery::PictureGallery(const DataFolder &folder, int perPage, QWidget *parent)
    : QListView(parent)
    , m_rows(perPage / columns)
    , m_loader(folder)
    , m_model(new PictureGalleryModel(this))
{
    setModel(m_model);
    setItemDelegate(new TileDelegate(*m_model, this));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setFont(TypeScale::label());
    connect(this, &QListView::doubleClicked, this, &PictureGallery::open);
}

PictureGallery::~PictureGallery() = default;

void PictureGallery::setPictures(std::vector<NamedPicture> pictures)
{
    m_loader.forget();
    m_waiting = int(pictures.size());
    m_model->setPictures(std::move(pictures));
    for (int i = 0; i < m_model->rowCount(); ++i) {
        m_loader.load(m_model->pictures()[std::size_t(i)].stored, tilePixels,
                      [this, i](const LoadedPicture &picture) {
                          m_model->setImage(i, picture.image);
                          --m_waiting;
                          emit progressed();
                      });
    }
    setCurrentIndex(m_model->index(0));
    scrollToTop();
}

int PictureGallery::waitingCount() const
{
    return m_waiting;
}

void PictureGallery::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    fitTiles();
}

/// The page fills the view; where that would leave no room for faces it scrolls.
void PictureGallery::fitTiles()
{
    const QSize room = contentsRect().size();
    const int height = std::max(leastTileHeight, (room.height() - 1) / m_rows);
    const bool scrolls = height * m_rows > room.height();
    setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    const int bar = scrolls ? verticalScrollBar()->sizeHint().width() : 0;
    setGridSize({(room.width() - bar - 1) / columns, height});
}

void PictureGallery::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_PageUp:
        emit stepRequested(-1);
        return;
    case Qt::Key_PageDown:
        emit stepRequested(1);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        open(currentIndex());
        return;
    default:
        QListView::keyPressEvent(event);
    }
}

void PictureGallery::open(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    const NamedPicture &picture = m_model->pictures()[std::size_t(index.row())];
    emit opened(picture.stored, picture.name);
}
