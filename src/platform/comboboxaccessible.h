// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class ComboBox;
class QAbstractItemView;

/// A drop-down list as assistive tools see it: named by its accessible name, with
/// the chosen entry as its value and as its text. While it is open, its entries
/// are its child; a field into which can be typed has that text as another. Its
/// menu action opens and closes the list; pressing it does the same, in a field
/// what Return does.
class ComboBoxAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    /// From now on every ComboBox is seen so.
    static void Install();

    explicit ComboBoxAccessible(ComboBox* comboBox);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

    // The text of the chosen entry is read only; nothing in it can be selected.
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    void selection(int selection, int* startOffset, int* endOffset) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

private:
    ComboBox* comboBox() const;
    QAbstractItemView* openList() const;
    QList<QWidget*> children() const;
};
