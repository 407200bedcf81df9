// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

class QLabel;
class QVBoxLayout;

/// A titled frame of a dialog, whose controls stand one below another. A title
/// that is wider than `width` pixels is wrapped inside the frame, which the
/// toolkit cannot do.
class DialogFrame : public QGroupBox {
    Q_OBJECT

public:
    DialogFrame(const QString& title, int width, QWidget* parent);

    QVBoxLayout* Rows() const { return m_rows; }

private:
    QVBoxLayout* m_rows;
};

/// A label whose text is shown as it stands, wrapped at `width` pixels.
QLabel* NewDialogLabel(const QString& text, int width, QWidget* parent);

/// A text as the caption of a button that has `width` pixels for it.
QString WrappedCaption(const QString& text, const QFont& font, int width);
