// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <vector>

class QAction;
class QSize;
class QWidget;

/// Keeps the toolbar of a window to one row while the window is narrow, so that the work keeps its height:
/// some tools are left out then, others bear a shorter word. A low window leaves none out.
class NarrowToolbar final : public QObject
{
    Q_OBJECT
public:
    /// Windows from this width on have room for all of it.
    static constexpr int wideFrom = 1280;

    explicit NarrowToolbar(QWidget *window);

    /// The tool needs a name of its own, or the entry in the menu would go with it.
    void leaveOut(QAction *tool);
    void shorten(QAction *tool, const QString &word);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A tool with its word in either width.
    struct Word {
        QAction *tool;
        QString wide;
        QString narrow;
    };

    void fit(QSize window) const;

    std::vector<QAction *> m_leftOut;
    std::vector<Word> m_words;
};
