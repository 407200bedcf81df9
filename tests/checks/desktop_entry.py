# SPDX-License-Identifier: MIT
"""Fails unless the entry in the desktop's menu is valid, speaks every language of
the program, and uses the program's own words; the entry for software catalogues
says in each language what it says in English, and names the languages as the front
page does."""

import json
import pathlib
import re
import subprocess
import sys
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
ENTRY = ROOT / "packaging" / "orvalen-years-calendar.desktop"
CATALOGUE_ENTRY = ROOT / "packaging" / "org.example.orvalen_years_calendar.metainfo.xml"
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"

# What the program calls itself and its four calendars, by section and key.
GENERIC_NAME = ("STRINGS", "1")
KEYWORDS = [("CALENDARS", "1"), ("CALENDARS", "2"), ("CALENDARS", "3"), ("CALENDARS", "4"),
            ("STRINGS", "9"), ("LABELS", "12")]


def read_entries(text):
    """Values by section and key."""
    entries, section = {}, ""
    for line in text.splitlines():
        if line.startswith("["):
            section = line.strip("[]")
        elif "=" in line and not line.startswith((";", "#")):
            key, value = line.split("=", 1)
            entries[section, key] = value
    return entries


def validator_remarks():
    done = subprocess.run(["desktop-file-validate", ENTRY], text=True, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode and not done.stdout:
        return [f"desktop-file-validate returns {done.returncode}"]
    return done.stdout.splitlines()


def wrong_words(entry, language, locale):
    """What the entry says in a locale in other words than the language's file."""
    words = read_entries((ROOT / "languages" / f"{language}.lng").read_text(encoding="utf-8"))
    keywords = entry.get(f"Keywords[{locale}]", "").split(";")
    for word in [GENERIC_NAME, *KEYWORDS]:
        if word not in words:
            yield f"{language}.lng has no {word[1]} in [{word[0]}]"
    if entry.get(f"GenericName[{locale}]") != words.get(GENERIC_NAME):
        yield f"{language}: GenericName[{locale}] is not that of the program"
    for word in KEYWORDS:
        if word in words and words[word] not in keywords:
            yield f"{language}: Keywords[{locale}] lacks {words[word]}"
    if not entry.get(f"Comment[{locale}]"):
        yield f"{language}: there is no Comment[{locale}]"


def wrong_in_catalogue(entry, locale):
    """In the entry for software catalogues."""
    root = xml.parse(CATALOGUE_ENTRY).getroot()

    def texts(path, language):
        return [one.text for one in root.findall(path) if one.get(LANGUAGE) == language]

    for path in ("description/p", "description/ul/li", "screenshots/screenshot/caption"):
        if len(texts(path, locale)) != len(texts(path, None)):
            yield f"the catalogue's {path} is not said in {locale}"
    for path, words in (("summary", entry.get(f"Comment[{locale}]")),
                        ("keywords/keyword", entry.get(f"Keywords[{locale}]", "").rstrip(";"))):
        if ";".join(texts(path, locale)) != words:
            yield f"the catalogue's {path} differs from the menu's in {locale}"


def unknown_locales(entry, locales):
    for key in entry:
        locale = re.search(r"\[(.*)\]$", key)
        if locale and locale[1] not in locales:
            yield f"{key} is of a language that the program does not speak"


def wrongly_told_languages(locales):
    """Where other pages do not name the languages of the program, and no other."""
    told = [tag.text for tag in xml.parse(CATALOGUE_ENTRY).iterfind("languages/lang")]
    if sorted(told) != sorted(["en", *locales.values()]):
        yield f"<languages> of {CATALOGUE_ENTRY.name} are {' '.join(told)}"
    page = (ROOT / "README.md").read_text(encoding="utf-8")
    listed = re.search(r"It speaks (.*?)\.", page, re.DOTALL)
    named = re.split(r",\s+|\s+and\s+", listed[1]) if listed else []
    if sorted(named) != sorted(["English", *locales]):
        yield f"README.md says that the program speaks {' '.join(named) or 'nothing'}"


def wrong_english(entry):
    """The English words and the names stand in the sources."""
    keywords = entry.get("Keywords", "").split(";")
    sources = {"shared/english.cpp": [entry.get("GenericName"), *keywords[:len(KEYWORDS)]],
               "start/frmabout.cpp": [entry.get("Name"), entry.get("Name[ru]")]}
    for name, words in sources.items():
        source = (ROOT / "src" / name).read_text(encoding="utf-8")
        for word in words:
            if f'"{word}"' not in source:
                yield f"{word} does not stand in {name}"


def main():
    entry = {key: value for (_, key), value in
             read_entries(ENTRY.read_text(encoding="utf-8")).items()}
    cldr = json.loads((ROOT / "tests" / "data" / "cldr-names.json").read_text(encoding="utf-8"))
    locales = {language.stem: cldr[language.stem]["locale"]
               for language in sorted((ROOT / "languages").glob("*.lng"))
               if language.stem in cldr}
    faults = [*validator_remarks(), *wrong_english(entry),
              *unknown_locales(entry, locales.values()), *wrongly_told_languages(locales)]
    for language, locale in locales.items():
        faults += wrong_words(entry, language, locale)
        faults += wrong_in_catalogue(entry, locale)
    print("\n".join(faults) or f"the entry speaks English and {len(locales)} languages more")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
