// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplitter>

#include <functional>

class QSettings;

/// The side pane and the work beside it. The handle's place is remembered; until the user moves it, the pane
/// is as wide as suits the window.
class SideSplitter final : public QSplitter
{
    Q_OBJECT
public:
    /// The pane's width in a window of this size, in pixels.
    using SuitableWidth = std::function<int(QSize window)>;

    SideSplitter(const QString &name, QWidget *side, QWidget *work, SuitableWidth suitableWidth);

    QWidget *side() const { return widget(0); }

    /// Gives the pane its suitable width anew, unless the user gave it another.
    void suit();
    /// The user's place counts no more.
    void forgetPlace();

    /// The place under `key` in the user's settings store; nothing is kept while the window chooses it.
    void restore(const QSettings &store, const QString &key);
    void save(QSettings &store, const QString &key) const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    SuitableWidth m_suitableWidth;
    bool m_isPlaced = false; ///< by the user, now or in an earlier run
};
