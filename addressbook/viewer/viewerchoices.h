#pragma once

#include "addressbook/model/addressviewer.h"

#include <QWidget>

#include <array>

class QButtonGroup;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// The left pane of the viewer: the search, the information to view, and whose names are shown.
class ViewerChoices final : public QWidget
{
    Q_OBJECT
public:
    explicit ViewerChoices(QWidget *parent = nullptr);

    QString searchText() const;
    void clearSearch();
    void focusSearch();

    Information information() const;
    DisplayRange::Kind rangeKind() const;
    /// The month in the box of `kind`; 0 when it names none.
    int month(DisplayRange::Kind kind) const;
    void focusMonth(DisplayRange::Kind kind);

    /// Everything that takes the focus, in reading order.
    QVector<QWidget *> tabOrder() const;

signals:
    void searchTyped(const QString &text);
    void searchPressed();
    void informationChosen();
    void updateRequested();
    /// The key that leads from the search to the names was pressed.
    void leftForNames();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addSearch(QVBoxLayout &column);
    void addInformation(QVBoxLayout &column);
    void addRange(QVBoxLayout &column);
    QComboBox *makeMonthBox(const QString &name, const QString &caption, DisplayRange::Kind kind);

    QLineEdit *m_searchBox = nullptr;
    QPushButton *m_searchButton = nullptr;
    QButtonGroup *m_information = nullptr;
    QButtonGroup *m_range = nullptr;
    std::array<QComboBox *, 3> m_months{}; ///< by the kind of range; none for all
    QPushButton *m_update = nullptr;
};
