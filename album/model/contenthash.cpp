// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/contenthash.h"

#include <QFile>
#include <QFileInfo>

#include <sodium.h>

std::optional<Photo::Hash> ContentHash::of(const QString &path, const std::atomic_bool &isStopped)
{
    constexpr qint64 atOnce = 256 << 10;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    crypto_generichash_state state;
    Photo::Hash hash{};
    crypto_generichash_init(&state, nullptr, 0, hash.size());
    QByteArray piece(atOnce, Qt::Uninitialized);
    while (!isStopped) {
        const qint64 got = file.read(piece.data(), atOnce);
        if (got < 0)
            return {};
        if (got == 0) {
            crypto_generichash_final(&state, hash.data(), hash.size());
            return hash;
        }
        crypto_generichash_update(&state, reinterpret_cast<const unsigned char *>(piece.constData()),
                                  static_cast<unsigned long long>(got));
    }
    return {};
}
