#!/usr/bin/env python3
"""Writes data/FXCountries.csv: every ISO 3166-1 country with its English short name and its
ITU telephone country code, sorted by name.

Names come from Debian's iso-codes (/usr/share/iso-codes/json/iso_3166-1.json), calling codes
from python3-phonenumbers. A territory without a calling code of its own in phonenumbers
(Antarctica, Pitcairn and the uninhabited ones such as Bouvet Island) keeps an empty phone
field. Run once when either package changes; the output is committed and the build enciphers
it. Debian's own interpreter is the one that sees the packaged modules:

    /usr/bin/python3 tools/data/make_countries.py > data/FXCountries.csv
"""

import csv
import json
import sys
import unicodedata

import phonenumbers

ISO_3166_1 = "/usr/share/iso-codes/json/iso_3166-1.json"


def sort_key(name):
    # "Åland Islands" sorts with the A's, not after "Zimbabwe".
    decomposed = unicodedata.normalize("NFKD", name)
    return "".join(c for c in decomposed if not unicodedata.combining(c)).casefold()


def main():
    with open(ISO_3166_1, encoding="utf-8") as f:
        countries = json.load(f)["3166-1"]
    rows = []
    for country in countries:
        code = country["alpha_2"]
        calling = phonenumbers.country_code_for_region(code)
        rows.append((country["name"], code, str(calling) if calling else ""))
    rows.sort(key=lambda row: sort_key(row[0]))

    out = csv.writer(sys.stdout, lineterminator="\n", quoting=csv.QUOTE_MINIMAL)
    out.writerow(("Country", "Code", "Phone"))
    out.writerows(rows)


if __name__ == "__main__":
    main()
