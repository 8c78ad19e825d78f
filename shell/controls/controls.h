// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

#include <array>

class QAction;
class QScrollArea;
class QVBoxLayout;

/// Gives `object` its name and returns it: each name stands once, where the control is made.
template <typename T>
T *named(T *object, const QString &name)
{
    object->setObjectName(name);
    return object;
}

/// An array of like controls named `name`_0, `name`_1, ...
template <typename T, std::size_t Count>
std::array<T *, Count> controlArray(const QString &name, QWidget *parent)
{
    std::array<T *, Count> controls{};
    for (std::size_t i = 0; i < Count; ++i)
        controls[i] = named(new T(parent), name + QLatin1Char('_') + QString::number(i));
    return controls;
}

/// A line edit for a field of a data file: takes at most `limit` bytes of the files' code page, and none of
/// the characters that the code page lacks, typed, pasted or dropped; what it leaves out it tells through
/// `refused`. Locked boxes are skipped by Tab and drawn as such.
class FieldBox : public QLineEdit
{
    Q_OBJECT
public:
    explicit FieldBox(QWidget *parent = nullptr);

    /// 0: no limit. One character is one byte.
    void setByteLimit(int limit);
    void setLocked(bool locked);
    bool isLocked() const { return isReadOnly(); }
    /// The first click into the box selects its text, as for a number that is typed anew; the next one places
    /// the cursor.
    void selectOnFirstClick() { m_selectsOnClick = true; }

signals:
    /// Something typed or pasted could not be taken, or not all of it; `reason` is a sentence for the status
    /// bar.
    void refused(const QString &reason);

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    class Validator;

    Validator *m_validator;
    int m_limit = 0;
    bool m_selectsOnClick = false;
    bool m_isUnclicked = true; ///< and nothing typed, since it got the focus
    bool m_isFirstClick = false;
};

/// A label whose text is cut with an ellipsis where it does not fit, and then stands whole in the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// A panel: rounded, with a thin rim, filled with the window colour of its palette, which everything on it
/// inherits.
class PanelFrame : public QWidget
{
    Q_OBJECT
public:
    explicit PanelFrame(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

enum class ButtonKind { Plain, Main };

/// A push button of the program's look; `Main` is the one accented button of a window.
QPushButton *makeButton(const QString &name, const QString &caption, QWidget *parent,
                        ButtonKind kind = ButtonKind::Plain);
void setButtonKind(QPushButton *button, ButtonKind kind);

/// A square button that shows an icon alone (dial, arrows, clear search); `word` is its tool tip and
/// accessible name.
QPushButton *makeIconButton(const QString &name, QLatin1StringView icon, const QString &word,
                            QWidget *parent);

/// A menu entry or command: object name, caption (with its access key), no shortcut.
QAction *makeAction(const QString &name, const QString &caption, QObject *parent);

/// A quiet label above a box, with an optional hint in the same line and the accented word "required".
QLabel *makeFieldLabel(const QString &caption, QWidget *buddy, QWidget *parent, const QString &hint = {},
                       bool required = false);

/// `box` with its label above it.
QVBoxLayout *labelled(QLabel *label, QWidget *box);
QVBoxLayout *labelled(const QString &caption, QWidget *box, const QString &hint = {});

/// A quiet line: a hint, a count, a derived fact.
QLabel *makeQuietLabel(const QString &text, QWidget *parent);

/// A group heading of a panel.
QLabel *makeHeading(const QString &caption, QWidget *parent);

/// The title of a record or a window.
QLabel *makeTitle(const QString &text, QWidget *parent);

/// A small rounded mark beside a title: the mode of the window.
QLabel *makeChip(const QString &name, const QString &text, QWidget *parent);

/// A thin horizontal line.
QWidget *makeLine(QWidget *parent);

/// How wide a box for texts like `text` is: `usual`, or more where the user's font needs it.
int boxWidth(const QString &text, int usual);

/// `content` in a view that scrolls where it does not fit; the colour of the panel shows through, and the
/// focus goes to what stands in it.
QScrollArea *makeScrolling(QWidget *content, const QString &name, QWidget *parent);

/// What a disabled control says of itself: sets tool tip and status tip to `reason` and disables it; an empty
/// reason enables it and gives it its own tool tip back.
void setUnavailable(QWidget *control, const QString &reason);
void setUnavailable(QAction *action, const QString &reason);
