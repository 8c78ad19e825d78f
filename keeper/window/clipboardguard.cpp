// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/clipboardguard.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QGuiApplication>
#include <QMimeData>
#include <QRandomGenerator>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Hint {
    QLatin1StringView format;
    QByteArrayView content;
};

/// What clipboard histories look for: the first on Linux, the others on Windows, where each is a format of
/// its own.
constexpr std::array hints{
    Hint{"x-kde-passwordManagerHint"_L1, "secret"},
    Hint{R"(application/x-qt-windows-mime;value="ExcludeClipboardContentFromMonitorProcessing")"_L1,
         QByteArrayView("\0\0\0\0", 4)},
    Hint{R"(application/x-qt-windows-mime;value="CanIncludeInClipboardHistory")"_L1,
         QByteArrayView("\0\0\0\0", 4)},
    Hint{R"(application/x-qt-windows-mime;value="CanUploadToCloudClipboard")"_L1,
         QByteArrayView("\0\0\0\0", 4)}};

} // namespace

ClipboardGuard::ClipboardGuard(QObject *parent)
    : QObject(parent)
    , m_timer(this)
{
    m_timer.setObjectName(u"clipboardTime"_s);
    m_timer.setSingleShot(true);
    setSeconds(usualSeconds);
    connect(&m_timer, &QTimer::timeout, this, &ClipboardGuard::empty);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ClipboardGuard::empty);
}

ClipboardGuard::~ClipboardGuard()
{
    empty();
}

void ClipboardGuard::setSeconds(int seconds)
{
    m_timer.setInterval(1000 * std::clamp(seconds, leastSeconds, mostSeconds));
}

int ClipboardGuard::seconds() const
{
    return m_timer.interval() / 1000;
}

void ClipboardGuard::copy(const QString &text)
{
    auto content = std::make_unique<QMimeData>();
    content->setText(text);
    copy(std::move(content));
}

void ClipboardGuard::copy(std::unique_ptr<QMimeData> content)
{
    m_salt.resize(32);
    QRandomGenerator::system()->fillRange(reinterpret_cast<quint32 *>(m_salt.data()), m_salt.size() / 4);
    m_mark = mark(content->text());
    for (const Hint &hint : hints)
        content->setData(hint.format, hint.content.toByteArray());
    QGuiApplication::clipboard()->setMimeData(content.release());
    m_timer.start();
}

void ClipboardGuard::empty()
{
    m_timer.stop();
    if (m_mark.isEmpty())
        return;
    for (const QClipboard::Mode mode : {QClipboard::Clipboard, QClipboard::Selection}) {
        if (holdsOurs(mode))
            QGuiApplication::clipboard()->clear(mode);
    }
    m_mark.clear();
    emit emptied();
}

QByteArray ClipboardGuard::mark(const QString &text) const
{
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(m_salt);
    hash.addData(text.toUtf8());
    return hash.result();
}

bool ClipboardGuard::holdsOurs(QClipboard::Mode mode) const
{
    const QClipboard &clipboard = *QGuiApplication::clipboard();
    if (mode == QClipboard::Selection && !clipboard.supportsSelection())
        return false;
    const QMimeData *content = clipboard.mimeData(mode);
    return content && mark(content->text()) == m_mark;
}
