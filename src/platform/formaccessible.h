// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>

class Form;

/// A window as assistive tools see it: with the role of a window, or of a dialog
/// when the toolkit takes it for one. Its children are the controls that are
/// shown and have something to say; backdrops, lines and ornaments have not.
class FormAccessible : public QAccessibleWidget {
public:
    /// From now on every Form is seen so.
    static void Install();

    explicit FormAccessible(Form* form);

    QAccessible::Role role() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    QList<QWidget*> children() const;
};
