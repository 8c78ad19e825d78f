// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/wificode.h"

#include <QRegularExpression>

#ifdef QUILLERY_HAS_QRENCODE
#include <qrencode.h>

#include <memory>
#endif

using namespace Qt::Literals::StringLiterals;

namespace {

/// Signs that mean something in the text of the code stand behind a backslash.
QString escaped(QString text)
{
    static const QRegularExpression signs(u"([\\\\;,:\"])"_s);
    return text.replace(signs, u"\\\\1"_s);
}

/// "WPA", "WEP" or "nopass" for whatever was written down.
QString protection(const KeeperEntry &entry)
{
    const QString written = entry.text(KeeperField::NetworkProtection);
    if (written.contains(u"WEP"_s, Qt::CaseInsensitive))
        return u"WEP"_s;
    return entry.text(KeeperField::Password).isEmpty() ? u"nopass"_s : u"WPA"_s;
}

} // namespace

bool WiFiCode::canMake()
{
#ifdef QUILLERY_HAS_QRENCODE
    return true;
#else
    return false;
#endif
}

QString WiFiCode::text(const KeeperEntry &entry)
{
    const QString name = entry.text(KeeperField::NetworkName);
    if (entry.kind() != EntryKind::WiFi || name.isEmpty())
        return {};
    QString text = u"WIFI:T:"_s + protection(entry) + u";S:"_s + escaped(name) + u';';
    if (const QString password = entry.text(KeeperField::Password); !password.isEmpty())
        text += u"P:"_s + escaped(password) + u';';
    return text + u';';
}

QStringList WiFiCode::squares(const KeeperEntry &entry)
{
#ifdef QUILLERY_HAS_QRENCODE
    constexpr int margin = 4;
    const QByteArray bytes = text(entry).toUtf8();
    if (bytes.isEmpty())
        return {};
    const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
        QRcode_encodeData(int(bytes.size()), reinterpret_cast<const unsigned char *>(bytes.constData()), 0,
                          QR_ECLEVEL_M),
        QRcode_free);
    if (!code)
        return {};
    const int count = code->width + 2 * margin;
    QStringList rows(count, QString(count, u' '));
    for (int y = 0; y < code->width; ++y) {
        for (int x = 0; x < code->width; ++x) {
            if (code->data[y * code->width + x] & 1)
                rows[y + margin][x + margin] = u'#';
        }
    }
    return rows;
#else
    Q_UNUSED(entry)
    return {};
#endif
}
