#!/usr/bin/env python3
# A till in Python: keeps a sale, prints its receipt once, says what to do if it cannot.
#
#   till.py sell SALES ID [OPTION...] < ITEMS
#   till.py again SALES [OPTION...]
#
# README.md says what these are.
import os
import re
import subprocess
import sys
from contextlib import suppress
from xml.sax.saxutils import quoteattr

CANNOT_PRINT = 2
TRY_AGAIN = 3
NOT_STARTED = (126, 127)  # what shells and the system's loader say

# What korvel-deliver ends with: the folder that the sale goes to, and the words for the cashier.
OUTCOMES = {
    0: ("printed", "{0}: sent to the printer."),
    1: ("refused", "{0}: not printed: the receipt is wrong. Call for help; it is not tried again."),
    CANNOT_PRINT: ("open",
                   "{0}: not printed: the till cannot print. Call for help, then try again."),
    TRY_AGAIN: ("open", "{0}: not printed yet. Look at the printer, then try again."),
    4: ("open", """{0}: in doubt. It may be on paper, or not:
1. Look at the paper: is the document there, whole?
2. Whole: `korvel-journal resolve {0} printed`. It is done.
3. Not there, or torn off in the middle: `korvel-journal resolve {0} not-printed`,
   and throw the piece away.
4. Then print it again as before; it comes out once.
5. Not sure, or a fiscal receipt in pieces: ask who keeps the books before you do either."""),
}
ENDED = "{0}: the delivery was ended. Try again; nothing is printed twice."


class NotKept(Exception):
    pass


def job_of(id, text):
    """The job of a receipt, of lines with quantity, name and price in cents between tabs."""
    rows = ""
    total = 0
    for line in text.split("\n"):
        item = re.fullmatch(r"([1-9][0-9]{0,3})\t([^\t]+)\t(0|[1-9][0-9]{0,6})", line)
        if not item:
            raise NotKept("an item is wrong")
        number, name, price = int(item[1]), item[2], int(item[3])
        total += number * price
        rows += (f'    <receipe number="{number}" name={quoteattr(name)}'
                 f' price="{amount(price)}" totalPrice="{amount(number * price)}"/>\n')
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n<printjob>\n'
            f'    <method name="printFullOrderReceipt"/>\n    <receipt serialnumber="{id}"/>\n'
            f'{rows}    <total price="{amount(total)}"/>\n</printjob>\n')


def amount(cents):
    return f"{cents // 100}.{cents % 100:02}"


def keep(sales, id, job):
    """Writes a sale whole or not at all, and never over another one."""
    part = f"{sales}/{id}.{os.getpid()}.part"
    try:
        for folder in ("open", "printed", "refused"):
            os.makedirs(f"{sales}/{folder}", exist_ok=True)
            if os.path.exists(f"{sales}/{folder}/{id}.xml"):
                raise NotKept("there is a sale of that name")
        with open(part, "w", encoding="utf-8") as file:
            file.write(job)
            file.flush()
            os.fsync(file.fileno())
        os.link(part, f"{sales}/open/{id}.xml")
        os.unlink(part)
    except OSError:
        raise NotKept(f"{sales} cannot be written") from None


def deliver(sales, id, options):
    """Delivers an open sale and says what came of it; the till's own status."""
    path = f"{sales}/open/{id}.xml"
    try:
        run = subprocess.run(["korvel-deliver", f"--id={id}", *options, "--", path],
                             stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                             stderr=subprocess.PIPE)
        status, reason = run.returncode, run.stderr.decode(errors="replace")
    except OSError:
        status = NOT_STARTED[0]
    if status in NOT_STARTED:
        status, reason = CANNOT_PRINT, "korvel-deliver cannot be started\n"
    folder, words = OUTCOMES.get(status, ("open", ENDED))
    if folder != "open":
        with suppress(FileNotFoundError):  # another try was quicker
            os.rename(path, f"{sales}/{folder}/{id}.xml")
    print(words.format(id))
    print(reason if status != 0 else "", end="", flush=True)
    return status if status in OUTCOMES else TRY_AGAIN


def sell(sales, id, options):
    try:
        if not re.fullmatch("[A-Za-z0-9][A-Za-z0-9-]{0,99}", id):
            raise NotKept("that is no name for a sale")
        try:
            text = sys.stdin.buffer.read().decode().rstrip("\n")
        except UnicodeDecodeError:
            raise NotKept("an item is wrong") from None
        keep(sales, id, job_of(id, text))
    except NotKept as reason:
        print(f"The sale is not kept: {reason}.")
        return CANNOT_PRINT
    return deliver(sales, id, options)


def again(sales, options):
    """Tries all that are open again; the highest of their statuses."""
    names = sorted(os.listdir(f"{sales}/open")) if os.path.isdir(f"{sales}/open") else []
    return max((deliver(sales, name[:-len(".xml")], options) for name in names), default=0)


def main(arguments):
    sys.stdout.reconfigure(encoding="utf-8", errors="replace")
    if len(arguments) >= 3 and arguments[0] == "sell":
        return sell(arguments[1], arguments[2], arguments[3:])
    if len(arguments) >= 2 and arguments[0] == "again":
        return again(arguments[1], arguments[2:])
    print("usage: till sell SALES ID [OPTION...] < ITEMS | till again SALES [OPTION...]",
          file=sys.stderr)
    return CANNOT_PRINT


sys.exit(main(sys.argv[1:]))
