#pragma once

/// A list to pick from that shows whether there is anything to pick.

#include <QComboBox>

/// An empty list looks as if it were disabled, and is told to be empty; it still takes the focus.
class ChoiceBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ChoiceBox(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Follows the entries of the model that the list has by now.
    void FollowEntries();

private:
    void ShowWhetherEmpty();
};
