// SPDX-License-Identifier: MIT
#include "platform/inifile.h"

#include "platform/encoding.h"

namespace {

// The form in which names are compared.
QByteArray nameOf(QByteArrayView text) {
    return text.trimmed().toByteArray().toLower();
}

} // namespace

IniFile::IniFile(const QByteArray& bytes) : m_lines(WithoutMark(bytes).split('\n')) {
    if (m_lines.last().isEmpty())
        m_lines.removeLast();
    findEntries();
}

std::optional<QByteArray> IniFile::Value(const QByteArray& section, const QByteArray& key,
                                         Which which) const {
    const Entry entry = m_sections.value(nameOf(section)).entries.value(nameOf(key));
    const qsizetype place = which == Which::First ? entry.first : entry.last;
    if (place < 0)
        return std::nullopt;
    const QByteArray& line = m_lines.at(place);
    return line.mid(line.indexOf('=') + 1);
}

void IniFile::Set(const QByteArray& section, const QByteArray& key, const QByteArray& value) {
    const QByteArray line = key + '=' + value;
    Section found = m_sections.value(nameOf(section));
    if (const Entry entry = found.entries.value(nameOf(key)); entry.last >= 0) {
        m_lines[entry.last] = line;
        return;
    }
    if (found.end < 0) {
        if (!m_lines.isEmpty())
            m_lines.append(QByteArray());
        found.end = m_lines.size();
        m_lines.append('[' + section + ']');
    }
    m_lines.insert(found.end + 1, line);
    findEntries();
}

void IniFile::findEntries() {
    m_sections.clear();
    Section* section = nullptr;
    bool isFirst = false;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QByteArrayView line = QByteArrayView(m_lines.at(i)).trimmed();
        const auto bracket = line.startsWith('[') ? line.indexOf(']') : -1;
        if (bracket > 0) {
            const QByteArray name = nameOf(line.sliced(1, bracket - 1));
            isFirst = !m_sections.contains(name);
            section = &m_sections[name];
        }
        if (section == nullptr || line.empty())
            continue;
        section->end = i;
        const auto equals = line.indexOf('=');
        if (bracket > 0 || line.startsWith(';') || equals < 0)
            continue;
        Entry& entry = section->entries[nameOf(line.first(equals))];
        entry.last = i;
        if (isFirst && entry.first < 0)
            entry.first = i;
    }
}
