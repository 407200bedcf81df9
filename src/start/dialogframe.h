// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

class QLabel;
class QVBoxLayout;

/// A titled frame of a dialog, whose controls stand one below another. The title
/// stands inside the frame, wrapped at `width` pixels: the toolkit does not wrap it,
/// and some styles cut it.
class DialogFrame : public QGroupBox {
    Q_OBJECT

public:
    DialogFrame(const QString& title, int width, QWidget* parent);

    QVBoxLayout* Rows() const { return m_rows; }

private:
    QVBoxLayout* m_rows;
};

/// A label whose text is shown as it stands, wrapped at `width` pixels.
QLabel* NewDialogLabel(const QString& text, int width, QWidget* parent, const QFont& font = {});

/// A text as the caption of a button that has `width` pixels for it.
QString WrappedCaption(const QString& text, const QFont& font, int width);
