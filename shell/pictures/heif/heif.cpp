// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/heifmodule.h"

#include <libheif/heif.h>

#include <array>
#include <cmath>
#include <memory>
#include <utility>

namespace {

/// Shapes that differ by less are the same, with a pixel more or less.
constexpr double sameShape = 0.03;

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<const heif_image_handle, decltype(&heif_image_handle_release)>;
using Decoded = std::unique_ptr<const heif_image, decltype(&heif_image_release)>;

bool isWell(const heif_error &error)
{
    return error.code == heif_error_Ok;
}

QSize sizeOf(const Handle &handle)
{
    return {heif_image_handle_get_width(handle.get()), heif_image_handle_get_height(handle.get())};
}

/// The library reads the bytes as long as the file is open.
class OpenFile
{
public:
    explicit OpenFile(const QByteArray &file)
        : m_context(heif_context_alloc(), heif_context_free)
        , m_picture(nullptr, heif_image_handle_release)
    {
        heif_image_handle *handle = nullptr;
        const auto size = std::size_t(file.size());
        if (m_context &&
            isWell(heif_context_read_from_memory_without_copy(m_context.get(), file.data(), size, nullptr)) &&
            isWell(heif_context_get_primary_image_handle(m_context.get(), &handle)))
            m_picture.reset(handle);
    }

    const Handle &picture() const { return m_picture; }

    /// The largest preview in the shape of the picture; null when there is none.
    Handle preview() const
    {
        Handle best(nullptr, heif_image_handle_release);
        if (!m_picture)
            return best;
        std::array<heif_item_id, 16> names{};
        const int count =
            heif_image_handle_get_list_of_thumbnail_IDs(m_picture.get(), names.data(), int(names.size()));
        for (int i = 0; i < count; ++i) {
            heif_image_handle *found = nullptr;
            if (!isWell(heif_image_handle_get_thumbnail(m_picture.get(), names[std::size_t(i)], &found)))
                continue;
            Handle handle(found, heif_image_handle_release);
            if (isInShape(sizeOf(handle)) && (!best || sizeOf(handle).width() > sizeOf(best).width()))
                best = std::move(handle);
        }
        return best;
    }

private:
    bool isInShape(QSize preview) const
    {
        const QSize whole = sizeOf(m_picture);
        if (preview.isEmpty() || whole.isEmpty())
            return false;
        const double stretch = double(preview.width()) * whole.height() / whole.width() / preview.height();
        return std::abs(stretch - 1) < sameShape;
    }

    Context m_context;
    Handle m_picture;
};

QImage decode(const Handle &handle)
{
    const bool hasAlpha = heif_image_handle_has_alpha_channel(handle.get()) != 0;
    heif_image *decoded = nullptr;
    const heif_error error =
        heif_decode_image(handle.get(), &decoded, heif_colorspace_RGB,
                          hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, nullptr);
    if (!isWell(error))
        return {};
    const Decoded owner(decoded, heif_image_release);
    int stride = 0;
    const uint8_t *pixels = heif_image_get_plane_readonly(decoded, heif_channel_interleaved, &stride);
    const QSize size(heif_image_get_width(decoded, heif_channel_interleaved),
                     heif_image_get_height(decoded, heif_channel_interleaved));
    if (!pixels || size.isEmpty())
        return {};
    const QImage::Format format = hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888;
    return QImage(pixels, size.width(), size.height(), stride, format)
        .convertToFormat(hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
}

QSize size(const QByteArray &file)
{
    const OpenFile open(file);
    return open.picture() ? sizeOf(open.picture()) : QSize();
}

QImage read(const QByteArray &file, QSize bound)
{
    const OpenFile open(file);
    if (!open.picture())
        return {};
    const QSize whole = sizeOf(open.picture());
    const QSize wanted = bound.isEmpty() ? whole : whole.scaled(bound, Qt::KeepAspectRatio).boundedTo(whole);
    // A preview that is large enough is there in a fraction of the time.
    const Handle preview = open.preview();
    const bool isEnough = preview && sizeOf(preview).width() >= wanted.width();
    const QImage image = decode(isEnough ? preview : open.picture());
    return image.isNull() || image.size() == wanted
               ? image
               : image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage preview(const QByteArray &file)
{
    const OpenFile open(file);
    const Handle handle = open.preview();
    return handle ? decode(handle) : QImage();
}

} // namespace

extern "C" Q_DECL_EXPORT const HeifModule *quilleryHeif()
{
    static constexpr HeifModule functions{size, read, preview};
    return &functions;
}
