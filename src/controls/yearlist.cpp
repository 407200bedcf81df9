// SPDX-License-Identifier: MIT
#include "controls/yearlist.h"

#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "shared/flags.h"

ListEntries Controls::YearEntries(int c) {
    return NumberedEntries(MinYear(c), MaxYear(c), CurDate(c, Year));
}

void Controls::ShowYearInList(ComboBox& list, int c) {
    const int year = CurDate(c, Year);
    const bool isInList = year >= MinYear(c) && year <= MaxYear(c);
    if (list.ListCount() <= 1 || !isInList)
        list.SetOnlyItem(QString::number(year));
    else
        list.SetListIndex(year - MinYear(c));
}

// Measured against the chosen day, so that no earlier text can go stale.
void Controls::ChooseYearOf(const ComboBox& list, int c, MainWindowNumber window) {
    const int year = list.ListIndex() + MinYear(c);
    if (Updating || list.ListCount() < 2 || year == CurDate(c, Year))
        return;
    ChangeCals::DeriveDay(list.Origin());
    ChangeCals::ChooseDate(c, {CurDate(c, Day), CurDate(c, Month), year}, window);
}
