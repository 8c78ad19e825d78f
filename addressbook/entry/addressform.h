// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"
#include "shell/core/programstate.h"

#include <QWidget>

#include <array>

class Clock;
class DateBox;
class DatePicker;
class FieldBox;
class PictureFrame;
class QBoxLayout;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;
struct Program;

/// The thirteen boxes of an entry in their two groups, the picture beside them, the dial buttons and the
/// words that can be told from the dates. Two columns where there is room, one below the other where there is
/// not.
class AddressForm final : public QWidget
{
    Q_OBJECT
public:
    /// The calendar of the date boxes floats over `window`.
    AddressForm(Program &program, QWidget *window, QWidget *parent = nullptr);

    using Texts = std::array<QString, AddressFieldCount>;
    Texts texts() const;
    void setTexts(const Texts &texts);

    void setLocked(bool locked);

    FieldBox *box(AddressField field) const { return m_boxes[field]; }
    PictureFrame *picture() const { return m_picture; }
    QPushButton *enlargeButton() const { return m_enlarge; }
    QLabel *dialingLabel() const { return m_dialing; }

    /// Puts a link beside the label of `field`, which must be one that has room for links: the address, a
    /// telephone, the e-mail. Tab comes to it behind the boxes.
    void addLink(AddressField field, QWidget *link);
    /// The same where Tab comes to it before the box.
    void addLinkBefore(AddressField field, QWidget *link);

    /// A quiet line under the names; empty takes it away.
    void setNameHint(const QString &hint);
    /// Whether the word "required" stands beside the last name.
    void setRequiredShown(bool shown);
    /// Puts dates that were typed into the form that the file keeps, as leaving their boxes does: before a
    /// save that comes by its access key.
    void tidyDates();

    QSize minimumSizeHint() const override;
    /// With the picture as low as it may be: it gives way before anything is cut.
    int heightForWidth(int width) const override;

signals:
    void edited();
    /// A quiet line for the status bar.
    void said(const QString &line);
    void dialRequested(const QString &number);
    void boxFocused(QWidget *box);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeBoxes();
    void makeDialButtons();
    void setTabOrders();
    QWidget *makeHomeColumn();
    QWidget *makeOtherColumn();
    void addPlace(QVBoxLayout *column);
    void addPhones(QVBoxLayout *column);
    FieldBox *makeBox(AddressField field);
    QVBoxLayout *labelledWithLinks(AddressField field);
    void refreshFacts();
    void fitPicture();
    void placeEnlargeButton();
    void paintIcons();

    const Clock &m_clock;
    const DateStyle &m_style;
    DatePicker *m_picker;
    std::array<FieldBox *, AddressFieldCount> m_boxes{};
    DateBox *m_birth = nullptr;
    DateBox *m_anniversary = nullptr;
    std::array<QPushButton *, 2> m_dialButtons{};
    QLabel *m_lastNameLabel = nullptr;
    QLabel *m_requiredLabel = nullptr;
    QLabel *m_nameHint = nullptr;
    QLabel *m_birthFact = nullptr;
    QLabel *m_anniversaryFact = nullptr;
    QLabel *m_dialing = nullptr;
    PictureFrame *m_picture = nullptr;
    QPushButton *m_enlarge = nullptr;
    QBoxLayout *m_columns;
    std::array<QHBoxLayout *, AddressFieldCount> m_linkRows{};
    QWidget *m_lastInOrder = nullptr; ///< of the boxes, the links and the picture
};
