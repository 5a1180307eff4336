#!/usr/bin/env python3
"""Fills a Qt Linguist file from a phrase table: fill_translations.py FILE.ts TABLE.tsv

The table has one text a line: context, German source, translation, separated by tabs, with
a line break written as \\n. A context of * stands for every context; a line for the exact
context wins. A translation of = keeps the source text (German, and words such as "Argon"
that read the same). Lines starting with # and blank lines are ignored. Every text of the
file the table lacks is listed and stays unfinished; table lines the file no longer holds are
listed too, so that the table can be kept tidy.
"""
import sys
import xml.etree.ElementTree as ET


def unescape(text):
    return text.replace("\\n", "\n")


def read_table(path):
    table = {}
    with open(path, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if not line.strip() or line.startswith("#"):
                continue
            parts = line.split("\t")
            if len(parts) != 3:
                sys.exit(f"{path}:{number}: expected context, source and translation, tab-separated")
            context, source, translation = (unescape(p) for p in parts)
            table[(context, source)] = translation
    return table


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    ts_path, table_path = sys.argv[1], sys.argv[2]
    table = read_table(table_path)
    used = set()
    tree = ET.parse(ts_path)
    missing = []
    for context in tree.getroot().iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            source = message.findtext("source")
            translation = message.find("translation")
            key = (name, source) if (name, source) in table else ("*", source)
            if key not in table:
                missing.append(f"{name}\t{source!r}")
                continue
            used.add(key)
            text = table[key]
            translation.text = source if text == "=" else text
            translation.attrib.pop("type", None)
    tree.write(ts_path, encoding="utf-8", xml_declaration=True)
    for line in missing:
        print(f"{table_path}: no translation: {line}")
    for key in sorted(set(table) - used):
        print(f"{table_path}: not in the code: {key[0]}\t{key[1]!r}")


if __name__ == "__main__":
    main()
