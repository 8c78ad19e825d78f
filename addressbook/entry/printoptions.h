#pragma once

#include "addressbook/model/addresspages.h"

#include <QWidget>

class QPushButton;
class QRadioButton;
class QSpinBox;

/// The print options: several entries on a sheet, with their pictures; all of them, or so many from the
/// selected name on.
class PrintOptions final : public QWidget
{
    Q_OBJECT
public:
    explicit PrintOptions(QWidget *parent = nullptr);

    /// Which lines of the name list to print.
    struct Range {
        int first = 0;
        int count = 0;
    };

    /// `selected` is the position of the selected name, or -1; `total` the number of names.
    void start(int selected, int total);
    Range range() const;
    void focusFirst();

signals:
    void entryRequested();
    void worksheetRequested();
    void cardsRequested(AddressPages::PerSheet perSheet);
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *makeChoices();
    QWidget *makeRange();
    void offerCount();

    int m_selected = -1;
    int m_total = 0;
    QVector<QPushButton *> m_cards;
    QPushButton *m_entry = nullptr;
    QRadioButton *m_all = nullptr;
    QRadioButton *m_some = nullptr;
    QSpinBox *m_count = nullptr;
};
