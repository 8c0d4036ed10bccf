"""The numbers of a calculation sheet in HTML, and their computation anew from their formulas."""

import html
import math
import re
from dataclasses import dataclass

NUMBER = re.compile(r'<span data-case="(\d+)" data-symbol="([^"]*)" data-value="([^"]*)" '
                    r'data-unit="([^"]*)"(?: data-formula="([^"]*)")?(?: data-clause="([^"]*)")?>'
                    r'(.*?)</span>')
REFERENCE = re.compile(r'<span data-case="(\d+)" data-ref="([^"]*)">(.*?)</span>')
SYMBOL = re.compile(r'[A-Za-z_][A-Za-z_0-9]*')
FUNCTIONS = {'sqrt': math.sqrt, 'abs': abs, 'min': min, 'max': max, 'floor': math.floor,
             'sin': math.sin, 'cos': math.cos, 'atan2': math.atan2}


@dataclass
class Number:
    case: int
    symbol: str
    value: float
    unit: str
    formula: str
    clause: str
    printed: str


def plain(printed):
    """The digits of a printed number: "−1 234.5" is "-1234.5"."""
    text = html.unescape(printed).replace('\u2212', '-').replace('\u202f', '').replace(',', '.')
    return re.sub(r'·10\^?<sup>(.*?)</sup>', r'e\1', text).replace('·10^', 'e')


def numbers_of(page):
    """All numbers by case and symbol; a symbol twice in a case is an error."""
    found = {}
    for case, symbol, value, unit, formula, clause, printed in NUMBER.findall(page):
        key = int(case), symbol
        if key in found:
            raise AssertionError(f'{key} stands twice')
        found[key] = Number(int(case), symbol, float(value), html.unescape(unit),
                            html.unescape(formula), html.unescape(clause), plain(printed))
    for case, symbol, _ in REFERENCE.findall(page):
        if (int(case), symbol) not in found:
            raise AssertionError(f'{symbol} of case {case} is referred to and is not there')
    return found


def value_of(number, numbers):
    """What the formula of a number gives over the values of its case and of all cases."""
    names = dict(FUNCTIONS)
    for symbol in SYMBOL.findall(number.formula):
        if symbol in names:
            continue
        other = numbers.get((number.case, symbol)) or numbers.get((0, symbol))
        if other is None:
            raise AssertionError(f'{number.symbol}: {symbol} is not on the sheet')
        names[symbol] = other.value
    return eval(number.formula, {'__builtins__': {}}, names)  # our own page, names checked


def close(a, b, tolerance=1e-9):
    return math.isfinite(a) and abs(a - b) <= tolerance * max(1.0, abs(b))


def wrong_numbers(numbers):
    """A line for each number that its formula does not give, or that is printed as another."""
    wrong = []
    for number in numbers.values():
        where = f'case {number.case}, {number.symbol} = {number.value!r}'
        if number.formula:
            found = value_of(number, numbers)
            if not close(found, number.value):
                wrong.append(f'{where}: {number.formula} gives {found!r}')
        if not math.isfinite(number.value):
            wrong.append(f'{where}: no number')
            continue
        digits = number.printed.split('e')[0]
        places = len(digits.split('.')[1]) if '.' in digits else 0
        power = int(number.printed.split('e')[1]) if 'e' in number.printed else 0
        last = 10.0 ** (power - places)
        # A point of the line is told in whole millimetres, rounded down.
        slack = 1.0 if re.fullmatch(r'[xy][AB]_s', number.symbol) else 0.5001
        if abs(float(number.printed) - number.value) > slack * last + 6e-7 * abs(number.value):
            wrong.append(f'{where}: printed as {number.printed}')
    return wrong
