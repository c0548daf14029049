#!/usr/bin/env python3
"""Makes every message of an English catalogue source translate to its own source text."""
import sys
import xml.etree.ElementTree as ET


def fill(path):
    tree = ET.parse(path)
    for message in tree.getroot().iter("message"):
        source = message.find("source")
        translation = message.find("translation")
        if translation is None:
            translation = ET.SubElement(message, "translation")
        translation.text = source.text
        translation.attrib.pop("type", None)
    with open(path, "wb") as out:
        out.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        tree.write(out, encoding="utf-8", xml_declaration=False)
        out.write(b"\n")


if __name__ == "__main__":
    for arg in sys.argv[1:]:
        fill(arg)
