// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <array>
#include <vector>

class QLabel;
struct Program;

/// What leads somebody into a household that holds nothing yet: one line of links under the date. What has
/// been done goes from it, and with the last of it the line; it can be sent away for good.
class FirstLook final : public QWidget
{
    Q_OBJECT
public:
    /// Pixels from its edge to its first word.
    static constexpr int indent = 6;

    explicit FirstLook(Program &program, QWidget *parent = nullptr);

    /// Looks whether the household is new; to be asked after the first paint. Shows the line if so.
    void begin();
    /// Looks what has been done by now. When it is what a link was pressed for, the next link has the focus.
    void refresh();

    /// Gives its first link the focus, for keys that lead into it.
    void takeFocus();
    /// The ink of its words on the background picture.
    void setInk(const QColor &ink);

signals:
    void nameWanted();
    void pictureWanted();
    void addressWanted();
    void restoreWanted();
    /// An arrow key leads down and out of the line.
    void leftDownward();
    /// The line has come or gone.
    void changed();

protected:
    bool event(QEvent *event) override;

private:
    enum Step { Name, Picture, Address, Restore, StepCount };

    class Link;

    bool isNew() const;
    bool isDone(Step step) const;
    bool isBegun() const;
    std::vector<Link *> shownLinks() const;
    void setLineFont(const QFont &font);
    int widthWith(const QFont &font) const;
    void walk(const Link *link, int key);
    void sendAway();
    void end();

    Program &m_program;
    std::array<Link *, StepCount> m_links{};
    std::array<QLabel *, StepCount> m_dashes{}; ///< before each but the first
    Link *m_notNow;
    Step m_pressed = StepCount; ///< the last one; none before
    bool m_isRunning = false;
};
