// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <string>

class LngFile;

/// Fills the text tables: with the English texts, and then with the entries of
/// the language's file, where it has them; the Jewish months are those of the
/// current year. When there is no such file, or it cannot be read, the user is told
/// and `name` becomes englishLanguage.
void LoadLanguage(std::string& name);

/// The entry of a language file, or `whenAbsent` where the file has none.
std::string ReadLngString(const LngFile& file, const char* section, int key,
                          const std::string& whenAbsent);

/// The name under which a language's file is listed: the first letter large, the
/// others small.
QString ListedName(QString name);

/// englishLanguage, then the listed names of the files in the program's folder,
/// each once, in the order of their letters' numbers. LoadLanguage finds a file
/// for each of them.
QStringList LanguageList();
