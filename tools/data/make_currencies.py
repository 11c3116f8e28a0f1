#!/usr/bin/env python3
"""Writes data/IPCurrencyList.csv: the ISO 4217 currencies a biller can be paid in, as
`Code,Description` rows sorted by code, for a host's IPCurrencyList.

The list comes from Debian's iso-codes (/usr/share/iso-codes/json/iso_4217.json). Codes that
are not money one pays a bill in are left out: fund and accounting units, precious metals, the
bond-market units, special drawing rights, and the testing and "no currency" codes. Run once
when iso-codes changes; the output is committed:

    /usr/bin/python3 tools/data/make_currencies.py > data/IPCurrencyList.csv
"""

import csv
import json
import sys

ISO_4217 = "/usr/share/iso-codes/json/iso_4217.json"

NOT_PAYABLE = {
    # funds and units of account
    "BOV", "CHE", "CHW", "CLF", "COU", "MXV", "USN", "UYI", "UYW",
    # precious metals
    "XAG", "XAU", "XPD", "XPT",
    # bond-market units, special drawing rights, regional units
    "XBA", "XBB", "XBC", "XBD", "XDR", "XSU", "XUA",
    # testing, no currency
    "XTS", "XXX",
}


def main():
    with open(ISO_4217, encoding="utf-8") as f:
        currencies = json.load(f)["4217"]
    rows = sorted(
        (c["alpha_3"], c["name"]) for c in currencies if c["alpha_3"] not in NOT_PAYABLE
    )
    out = csv.writer(sys.stdout, lineterminator="\n", quoting=csv.QUOTE_MINIMAL)
    out.writerow(("Code", "Description"))
    out.writerows(rows)


if __name__ == "__main__":
    main()
