// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

class QStringListModel;

/// A drop-down list in the classic terms. Click is raised for the user's choices
/// only, also when the same entry is chosen again. A list may be filled on first
/// use: GotFocus comes when the list gets the focus, BeforeUse whenever it is
/// about to drop down or to take a key or a turn of the wheel. The wheel does
/// nothing without the focus. A text too wide for the list is shown in a smaller
/// font rather than cut.
class ComboBox : public QComboBox {
    Q_OBJECT

public:
    ComboBox(const QString& name, QWidget* parent);

    void AddItem(const QString& text) { addItem(text); }
    void Clear() { clear(); }

    /// Replaces the list by these entries and selects one by its position.
    void SetItems(const QStringList& texts, int position);
    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }

    /// A position outside the list selects nothing.
    void SetListIndex(int position) { setCurrentIndex(position); }
    QString Text() const { return currentText(); }

    /// Clears the list and makes `text` its only entry, selected.
    void SetOnlyItem(const QString& text) { SetItems({text}, 0); }

    void showPopup() override;

Q_SIGNALS:
    void GotFocus();
    void BeforeUse();
    void Click();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QStringListModel* m_items; ///< takes thousands of entries at once
};
