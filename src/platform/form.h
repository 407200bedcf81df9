// SPDX-License-Identifier: MIT
#pragma once

#include "platform/spokenanswer.h"
#include "platform/twips.h"

#include <QWidget>

/// A window in the classic terms: loaded (constructed), shown, hidden, unloaded.
/// Closing it through its frame unloads it: it is hidden at once, told by
/// Form_Unload and destroyed when its events are done. Positions are those of
/// the frame, sizes those of the contents, in pixels. Nobody resizes it but the
/// program.
class Form : public QWidget, public Speaker {
    Q_OBJECT

public:
    enum State { Normal, Minimised, Maximised };

    explicit Form(const QString& name);

    Twips Top() const;
    Twips Left() const;

    /// The frame is where it was put until somebody moves it.
    void Move(Twips left, Twips top);
    void SetSize(const QSize& size);

    /// Minimised windows are visible.
    bool Visible() const { return isVisible(); }
    State WindowState() const;

    /// Shows the window modeless and in front, out of the minimised state where
    /// it is in it. Show gives it the keyboard as well.
    void ShowInFront();
    void Show();
    void Hide() { hide(); }

    void Unload();
    bool IsUnloaded() const { return m_unloaded; }

    /// Plain text. An empty caption leaves the title bar empty.
    void SetCaption(const QString& caption);

protected:
    /// The window has gone from the screen and will be destroyed.
    virtual void Form_Unload() {}

    void closeEvent(QCloseEvent* event) override;

private:
    void bringUp();
    int settled(int place, int put) const;

    QPoint m_put; ///< where the frame was put last
    bool m_unloaded = false;
};
