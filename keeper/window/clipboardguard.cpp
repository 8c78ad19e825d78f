// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/clipboardguard.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QGuiApplication>
#include <QMimeData>
#include <QRandomGenerator>
#include <QWidget>

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
    , owns([](QClipboard::Mode mode) {
        const QClipboard &clipboard = *QGuiApplication::clipboard();
        return mode == QClipboard::Clipboard ? clipboard.ownsClipboard() : clipboard.ownsSelection();
    })
    , m_timer(this)
{
    m_timer.setObjectName(u"clipboardTime"_s);
    m_timer.setSingleShot(true);
    m_salt.resize(32);
    QRandomGenerator::system()->fillRange(reinterpret_cast<quint32 *>(m_salt.data()), m_salt.size() / 4);
    setSeconds(usualSeconds);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        const bool wasCopied = !m_mark.isEmpty();
        empty();
        if (wasCopied)
            emit ranOut();
    });
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
    m_mark = mark(content->text());
    for (const Hint &hint : hints)
        content->setData(hint.format, hint.content.toByteArray());
    QGuiApplication::clipboard()->setMimeData(content.release());
    m_timer.start();
}

void ClipboardGuard::empty()
{
    m_timer.stop();
    if (m_mark.isEmpty() && m_selectionMark.isEmpty())
        return;
    for (const QClipboard::Mode mode : {QClipboard::Clipboard, QClipboard::Selection}) {
        if (holdsOurs(mode))
            QGuiApplication::clipboard()->clear(mode);
    }
    m_mark.clear();
    m_selectionMark.clear();
    emit emptied();
}

void ClipboardGuard::watch(const QWidget *window)
{
    m_window = window;
    connect(QGuiApplication::clipboard(), &QClipboard::changed, this, &ClipboardGuard::follow);
}

bool ClipboardGuard::isWatched(const QWidget *active) const
{
    while (active && active != m_window)
        active = active->parentWidget();
    return active != nullptr;
}

/// A box of an entry copies by itself, and what is marked in one is the selection of X11.
void ClipboardGuard::follow(QClipboard::Mode mode)
{
    const bool isKnown = mode == QClipboard::Clipboard || mode == QClipboard::Selection;
    if (!isKnown || !owns(mode) || !isWatched(QApplication::activeWindow()))
        return;
    const QString text = QGuiApplication::clipboard()->text(mode);
    if (text.isEmpty())
        return;
    const QByteArray found = mark(text);
    if (mode == QClipboard::Selection) {
        m_selectionMark = found;
        if (!m_timer.isActive()) // what was copied before keeps its time
            m_timer.start();
    } else if (found != m_mark) {
        copy(text); // with the hints for histories
    }
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
    if (!content)
        return false;
    const QByteArray found = mark(content->text());
    return found == m_mark || (mode == QClipboard::Selection && found == m_selectionMark);
}
