// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/heifpictures.h"

#include "shell/core/programmodule.h"
#include "shell/pictures/heifmodule.h"

#include <QIODevice>
#include <QImageIOPlugin>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 headBytes = 12;
/// A larger file is no photograph, and would have to be in memory whole.
constexpr qint64 mostBytes = 256 * 1024 * 1024;

const HeifModule *decoder()
{
    static const HeifModule *const loaded = [] {
        const QFunctionPointer found =
            ProgramModule::function(QString::fromLatin1(HeifModule::name), HeifModule::entry);
        return found ? reinterpret_cast<HeifModule::Entry *>(found)() : nullptr;
    }();
    return loaded;
}

/// One file, for Qt's reader of pictures. It never says how the picture was held: the module has turned it.
class HeifHandler final : public QImageIOHandler
{
public:
    bool canRead() const override
    {
        if (m_isRead || !device() || HeifPictures::kind(device()->peek(headBytes)).isEmpty())
            return false;
        setFormat("heic");
        return true;
    }
    bool read(QImage *image) override
    {
        if (m_isRead || !load())
            return false;
        m_isRead = true;
        *image = decoder()->read(m_bytes, m_bound);
        m_bytes.clear();
        return !image->isNull();
    }
    QVariant option(ImageOption option) const override
    {
        if (option == ScaledSize)
            return m_bound;
        if (option == Size)
            return const_cast<HeifHandler *>(this)->size();
        return {};
    }
    void setOption(ImageOption option, const QVariant &value) override
    {
        if (option == ScaledSize)
            m_bound = value.toSize();
    }
    bool supportsOption(ImageOption option) const override { return option == ScaledSize || option == Size; }

private:
    bool load()
    {
        if (m_bytes.isEmpty() && decoder() && device() && device()->size() <= mostBytes)
            m_bytes = device()->readAll();
        return !m_bytes.isEmpty();
    }
    QSize size()
    {
        if (m_size.isEmpty() && load())
            m_size = decoder()->size(m_bytes);
        return m_size;
    }

    QByteArray m_bytes;
    QSize m_size;
    QSize m_bound;
    bool m_isRead = false;
};

} // namespace

/// Makes `HeifHandler` known to Qt.
class HeifPlugin final : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "heifpictures.json")
public:
    Capabilities capabilities(QIODevice *device, const QByteArray &format) const override
    {
        const bool isNamed = format == "heic" || format == "heif" || format == "avif";
        if (!device)
            return isNamed && HeifPictures::areReadable() ? CanRead : Capabilities();
        const bool isOurs = (format.isEmpty() || isNamed) && device->isReadable() &&
                            !HeifPictures::kind(device->peek(headBytes)).isEmpty();
        return isOurs && HeifPictures::areReadable() ? CanRead : Capabilities();
    }
    QImageIOHandler *create(QIODevice *device, const QByteArray &format) const override
    {
        auto *handler = new HeifHandler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

Q_IMPORT_PLUGIN(HeifPlugin)

QByteArray HeifPictures::kind(QByteArrayView first)
{
    if (first.size() < headBytes || first.sliced(4, 4) != "ftyp")
        return {};
    const QByteArrayView brand = first.sliced(8, 4);
    if (brand == "avif" || brand == "avis")
        return "AVIF";
    static constexpr std::array brands{"heic", "heix", "heim", "heis", "hevc", "hevx", "mif1", "msf1"};
    return std::find(brands.begin(), brands.end(), brand) != brands.end() ? "HEIC" : QByteArray();
}

bool HeifPictures::areReadable()
{
    return decoder() != nullptr;
}

QImage HeifPictures::preview(QIODevice &file)
{
    return decoder() && file.size() <= mostBytes ? decoder()->preview(file.readAll()) : QImage();
}

#include "heifpictures.moc"
