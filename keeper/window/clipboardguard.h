// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QClipboard>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

class QMimeData;
class QWidget;

/// What the keeper puts on the clipboard stays there for a short while only, and clipboard histories are told
/// to leave it alone. Nothing is taken off the clipboard that somebody else has put there since.
class ClipboardGuard final : public QObject
{
    Q_OBJECT
public:
    static constexpr int leastSeconds = 10;
    static constexpr int usualSeconds = 30;
    static constexpr int mostSeconds = 120;

    /// Empties the clipboard when the program ends, too.
    explicit ClipboardGuard(QObject *parent);
    ~ClipboardGuard() override;

    /// Guards what is copied or marked in `window` by the usual ways, too.
    void watch(const QWidget *window);

    /// Whether this program has put there what is there; a test answers for platforms that do not know.
    std::function<bool(QClipboard::Mode)> owns;

    void setSeconds(int seconds);
    int seconds() const;

    void copy(const QString &text);
    /// The same for a page: its text is what is looked for when the time is over.
    void copy(std::unique_ptr<QMimeData> content);
    /// Empties clipboard and selection now, where they still hold what was copied.
    void empty();
    bool isWaiting() const { return m_timer.isActive(); }

signals:
    void emptied();
    /// Its time was over.
    void ranOut();

private:
    QByteArray mark(const QString &text) const;
    bool holdsOurs(QClipboard::Mode mode) const;
    void follow(QClipboard::Mode mode);
    bool isWatched(const QWidget *active) const;

    QTimer m_timer;
    QByteArray m_salt;
    QByteArray m_mark;          ///< of the text that was copied last, which is not kept itself
    QByteArray m_selectionMark; ///< of the text that was marked last
    const QWidget *m_window = nullptr;
};
