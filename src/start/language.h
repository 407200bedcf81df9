// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <string>

class ProfileFile;

/// Fills the text tables: with the English texts, and then with the entries of
/// the language's file, where it has them. When there is no such file, or it
/// cannot be read, the user is told and `name` becomes englishLanguage. Month 13
/// of the Jewish names is left as it is.
void LoadLanguage(std::string& name);

/// The entry of a language file, or `standard` where the file has none.
std::string ReadLngString(const ProfileFile& file, const char* section, int key,
                          const std::string& standard);

/// englishLanguage, then the languages of the files in the program's folder: the
/// names of the files without ".lng", first letter large, the others small.
QStringList LanguageList();
