#!/usr/bin/python3
"""Makes an Excel workbook of a readable text: Wertemappe.py TEXT XLS

"[name]" begins a sheet; every other line is a row, its cells parted by "|". A cell is text as it stands,
"=12.5" a number, "@2024-03-05" a date; an empty cell stays empty. "#" begins a comment. Needs python3-xlwt.
"""
import datetime
import sys

import xlwt


def zelle_schreiben(blatt, zeile, spalte, text):
    if text.startswith("="):
        blatt.write(zeile, spalte, float(text[1:]))
    elif text.startswith("@"):
        tag = datetime.datetime.strptime(text[1:], "%Y-%m-%d")
        blatt.write(zeile, spalte, tag, xlwt.easyxf(num_format_str="DD.MM.YYYY"))
    elif text:
        blatt.write(zeile, spalte, text)


def mappe_schreiben(quelle, ziel):
    mappe = xlwt.Workbook(encoding="utf-8")
    blatt, zeile = None, 0
    with open(quelle, encoding="utf-8") as text:
        for roh in text:
            roh = roh.rstrip("\n")
            if not roh.strip() or roh.startswith("#"):
                continue
            if roh.startswith("["):
                blatt, zeile = mappe.add_sheet(roh.strip("[]")), 0
                continue
            for spalte, wert in enumerate(roh.split("|")):
                zelle_schreiben(blatt, zeile, spalte, wert.strip())
            zeile += 1
    mappe.save(ziel)


mappe_schreiben(sys.argv[1], sys.argv[2])
