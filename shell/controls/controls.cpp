// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/controls.h"

#include "shell/controls/enterkey.h"
#include "shell/controls/pastefilter.h"
#include "shell/controls/scrollpart.h"
#include "shell/core/shellmessages.h"
#include "shell/look/theme.h"
#include "storage/ansitext.h"

#include <QAction>
#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyle>
#include <QToolTip>
#include <QVBoxLayout>
#include <QValidator>
#include <QVariant>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int unlimited = 32767;
constexpr double panelCorner = 10;
constexpr int labelGap = 3;
constexpr auto ownToolTip = "ownToolTip";

/// A label above a box. Its words beside the caption take their colours from the palette, so that they follow
/// the ink of a coloured panel.
class FieldLabel final : public QLabel
{
public:
    FieldLabel(const QString &caption, const QString &hint, bool required, QWidget *parent)
        : QLabel(parent)
        , m_caption(caption)
        , m_hint(hint)
        , m_required(required)
    {
        setFont(TypeScale::label());
        setForegroundRole(ThemeRole::quiet);
        compose();
    }

protected:
    void changeEvent(QEvent *event) override
    {
        QLabel::changeEvent(event);
        if (event->type() == QEvent::PaletteChange)
            compose();
    }

private:
    void compose()
    {
        const QString hint = m_hint.isEmpty() ? QString() : u"  "_s + m_hint;
        if (!m_required) {
            setTextFormat(Qt::PlainText);
            setText(m_caption + hint);
            return;
        }
        setTextFormat(Qt::RichText);
        // Blanks as characters: of an entity, the label would take the letter for the box's access key.
        setText(u"%1%2\u00a0\u00a0<span style=\"color:%3; font-weight:600\">%4</span>"_s.arg(
            m_caption.toHtmlEscaped(), hint.toHtmlEscaped(), palette().color(ThemeRole::strong).name(),
            ShellMessages::required()));
    }

    QString m_caption;
    QString m_hint;
    bool m_required;
};

/// Its access key acts at once: the tenth of a second that a button takes to be seen pressed is longer than
/// the way to the next key, which would still go into the box that is left.
class PromptButton final : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent *>(event)->isAmbiguous()) {
            click();
            return true;
        }
        return QPushButton::event(event);
    }
};

/// A line one logical pixel high.
class Line final : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(ThemeRole::line));
    }
};

QLabel *makeLabel(const QString &text, const QFont &font, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(font);
    return label;
}

template <typename T>
void makeUnavailable(T *control, const QString &reason)
{
    const bool wasAvailable = control->isEnabled() || control->statusTip().isEmpty();
    if (!reason.isEmpty()) {
        if (wasAvailable)
            control->setProperty(ownToolTip, control->toolTip());
        control->setToolTip(reason);
    } else if (!wasAvailable) {
        control->setToolTip(control->property(ownToolTip).toString());
    }
    control->setStatusTip(reason);
    control->setEnabled(reason.isEmpty());
}

} // namespace

/// Refuses what the files cannot hold and remembers which characters those were.
class FieldBox::Validator final : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &input, int &) const override
    {
        std::ranges::replace_if(input, isControl, u' '); // a file may have them
        m_foreign = AnsiText::foreignCharacters(input);
        return m_foreign.isEmpty() ? Acceptable : Invalid;
    }

    QString takeForeign() const { return std::exchange(m_foreign, {}); }

private:
    mutable QString m_foreign;
};

FieldBox::FieldBox(QWidget *parent)
    : QLineEdit(parent)
    , m_validator(new Validator(this))
{
    setValidator(m_validator);
    connect(this, &QLineEdit::textEdited, this, [this] { m_isUnclicked = false; });
    connect(this, &QLineEdit::inputRejected, this, [this] {
        const QString foreign = m_validator->takeForeign();
        emit refused(foreign.isEmpty() ? ShellMessages::fieldIsFull(m_limit)
                                       : ShellMessages::characterRefused(foreign));
    });
    const auto *pasting = new PasteFilter(this, Characters::OfTheFiles);
    connect(pasting, &PasteFilter::leftOut, this, [this](const QString &foreign, const QString &cutOff) {
        QStringList reasons;
        if (!foreign.isEmpty())
            reasons << ShellMessages::characterRefused(foreign);
        if (!cutOff.isEmpty())
            reasons << ShellMessages::fieldIsFull(maxLength(), cutOff);
        emit refused(reasons.join(u". "_s));
    });
}

void FieldBox::setByteLimit(int limit)
{
    m_limit = limit;
    setMaxLength(limit > 0 ? limit : unlimited);
}

void FieldBox::setLocked(bool locked)
{
    setReadOnly(locked);
    setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
}

void FieldBox::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    m_isUnclicked = true;
}

void FieldBox::mousePressEvent(QMouseEvent *event)
{
    m_isFirstClick = std::exchange(m_isUnclicked, false) && m_selectsOnClick;
    QLineEdit::mousePressEvent(event);
}

void FieldBox::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(m_isFirstClick, false) && !hasSelectedText())
        selectAll();
}

/// A long text shows its beginning when the box is left. A menu, and another window, are only a moment.
void FieldBox::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        reason != Qt::MenuBarFocusReason)
        home(false);
}

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const bool isCut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), isCut ? text() : QString(), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

PanelFrame::PanelFrame(QWidget *parent)
    : QWidget(parent)
{
    setPalette(Theme::of(this).panelPalette());
}

void PanelFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(ThemeRole::line));
    painter.setBrush(palette().color(QPalette::Window));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), panelCorner, panelCorner);
}

QPushButton *makeButton(const QString &name, const QString &caption, QWidget *parent, ButtonKind kind)
{
    QPushButton *button = named(new PromptButton(caption, parent), name);
    button->setAutoDefault(false);
    letEnterPress(button);
    setButtonKind(button, kind);
    return button;
}

void setButtonKind(QPushButton *button, ButtonKind kind)
{
    button->setProperty("main", kind == ButtonKind::Main);
    button->setFont(kind == ButtonKind::Main ? TypeScale::strong() : TypeScale::body());
    button->update();
}

QPushButton *makeIconButton(const QString &name, QLatin1StringView icon, const QString &word, QWidget *parent)
{
    QPushButton *button = named(new PromptButton(parent), name);
    const Theme &theme = Theme::of(parent);
    button->setAutoDefault(false);
    letEnterPress(button);
    button->setIcon(Icons::tinted(icon, theme.scheme, theme.accent));
    button->setIconSize(QSize(20, 20));
    button->setToolTip(word);
    button->setAccessibleName(word);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

QAction *makeAction(const QString &name, const QString &caption, QObject *parent)
{
    return named(new QAction(caption, parent), name);
}

QLabel *makeFieldLabel(const QString &caption, QWidget *buddy, QWidget *parent, const QString &hint,
                       bool required)
{
    auto *label = new FieldLabel(caption, hint, required, parent);
    if (buddy) {
        label->setBuddy(buddy);
        QWidget *box = buddy; // what gets the focus is what is read out
        while (box->focusProxy())
            box = box->focusProxy();
        QString name = QString(caption).remove(u'&');
        if (name.endsWith(u':'))
            name.chop(1);
        if (box->accessibleName().isEmpty())
            box->setAccessibleName(name);
    }
    return label;
}

QVBoxLayout *labelled(QLabel *label, QWidget *box)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(labelGap);
    layout->addWidget(label);
    layout->addWidget(box);
    return layout;
}

QVBoxLayout *labelled(const QString &caption, QWidget *box, const QString &hint)
{
    return labelled(makeFieldLabel(caption, box, box->parentWidget(), hint), box);
}

QLabel *makeQuietLabel(const QString &text, QWidget *parent)
{
    QLabel *label = makeLabel(text, TypeScale::label(), parent);
    label->setForegroundRole(ThemeRole::quiet);
    return label;
}

QLabel *makeHeading(const QString &caption, QWidget *parent)
{
    return makeLabel(caption, TypeScale::group(), parent);
}

QLabel *makeTitle(const QString &text, QWidget *parent)
{
    return makeLabel(text, TypeScale::windowTitle(), parent);
}

QLabel *makeChip(const QString &name, const QString &text, QWidget *parent)
{
    QFont font = TypeScale::label();
    font.setWeight(QFont::DemiBold);
    QLabel *chip = named(makeLabel(text, font, parent), name);
    chip->setProperty("chip", true);
    chip->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    return chip;
}

QWidget *makeLine(QWidget *parent)
{
    auto *line = new Line(parent);
    line->setFixedHeight(1);
    return line;
}

QScrollArea *makeScrolling(QWidget *content, const QString &name, QWidget *parent)
{
    return named(new ScrollPart(content, parent), name);
}

int boxWidth(const QString &text, int usual)
{
    constexpr int margins = 28;
    return std::max(usual, QFontMetrics(TypeScale::body()).horizontalAdvance(text) + margins);
}

void setUnavailable(QWidget *control, const QString &reason)
{
    makeUnavailable(control, reason);
}

void setUnavailable(QAction *action, const QString &reason)
{
    makeUnavailable(action, reason);
}
