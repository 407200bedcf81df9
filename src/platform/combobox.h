// SPDX-License-Identifier: MIT
#pragma once

#include "platform/listtyping.h"
#include "platform/spokenanswer.h"

#include <QComboBox>
#include <functional>
#include <optional>
#include <vector>

/// The entries of a list and the position of the chosen one.
struct ListEntries {
    QStringList texts;
    int chosen = -1;
};

/// An entry for each of the numbers first..last; none at all when `chosen` is not
/// among them.
ListEntries NumberedEntries(
    int first, int last, int chosen,
    const std::function<QString(int)>& entry = [](int number) { return QString::number(number); });

/// A drop-down list in the classic terms. Click is raised for the user's choices
/// only, also when the same entry is chosen again. The wheel does nothing without
/// the focus. A text too wide for the list is broken between words where the list is
/// high enough, and else shown in a smaller font rather than cut. At most 15 entries
/// drop down, the chosen one in their middle.
///
/// A number typed into the list chooses at each digit (ListTyping).
class ComboBox : public QComboBox, public Speaker {
    Q_OBJECT

public:
    using Filler = std::function<ListEntries()>;

    ComboBox(const QString& name, QWidget* parent);

    /// Where a list of less than two entries takes its entries from when it gets
    /// the focus or is about to be used. Without entries it stays as it is.
    void SetFiller(Filler filler) { m_filler = std::move(filler); }

    /// From where choices are measured, as a number of the owner's. What one digit
    /// chose is replaced by the next one's choice, so that in a Click of a typed number
    /// Origin is still what it was when the typing began.
    void SetOrigin(std::function<int()> origin) { m_typing.SetOrigin(std::move(origin)); }
    int Origin() const { return m_typing.Origin(); }

    void AddItem(const QString& text) { addItem(text); }
    void Clear() { clear(); }

    /// Replaces the list by these entries and selects one by its position.
    void SetItems(const QStringList& texts, int position);
    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }

    /// A position outside the list selects nothing.
    void SetListIndex(int position) { setCurrentIndex(position); }
    QString Text() const { return currentText(); }

    /// How an entry is spoken, by its position; as it is written where nothing else
    /// is said here.
    void SetSpokenEntries(std::function<QString(int position)> spoken);
    QString Spoken() const;
    QString Answer() const override { return Spoken(); }

    /// Makes `text` the only entry, selected.
    void SetOnlyItem(const QString& text) { SetItems({text}, 0); }

    /// The width that shows `text` whole in the list's own font, in pixels.
    int WidthFor(const QString& text) const;

    /// The height that shows each of these texts in the list's own font, in a list of
    /// `width` pixels: on two lines where one of them does not fit on one.
    int HeightFor(const QStringList& texts, int width) const;

    /// Takes a font smaller than the parent's where `text` would not be shown whole
    /// in `most` pixels. Returns the width that the text needs, `most` at the most.
    int FitWidth(const QString& text, int most);

    /// From now on these lists show their texts in one letter size, the smallest
    /// that one of them needs.
    static void ShareLetterSize(const std::vector<ComboBox*>& lists);

    void showPopup() override;

Q_SIGNALS:
    void Click();

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Entries;

    void fill();

    int chromeWidth() const;
    QSize roomIn(const QSize& size) const;
    const QFont& ownFittedFont() const;
    QFont fittedFont() const;

    Entries* m_items;
    ListTyping m_typing;
    Filler m_filler;
    std::vector<ComboBox*> m_sharing;         ///< of one letter size
    mutable std::optional<QFont> m_ownFitted; ///< of the text, font and width as they are
};
