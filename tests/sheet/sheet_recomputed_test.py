"""Computes every line of the calculation sheets of 1,000 tasks anew, from the formulas and values
that stand on them, and holds their numbers against those of the reports.

Called with the program that makes the sheets, the folder of the catalogues, and the golden tasks.
"""

import json
import random
import re
import subprocess
import sys
import unittest

from sheet_page import numbers_of, wrong_numbers

PAGES, DATA = sys.argv[1], sys.argv[2]
GOLDEN = sys.argv[3:]
TASKS = 1000


def random_task(chance):
    length = chance.randrange(200, 1201, 10)
    width = chance.randrange(150, length + 1, 5)
    count = chance.choice([1, 2, 4, 4, 6, 8, 12, 20])
    diameters = [12, 16, 20, 24, 30, 36, 42]
    fi = chance.choice(diameters)
    task = {
        'Nazwa_projektu': 'Hala <A> & "B"', 'Nazwa_stopy': f'F-{chance.randrange(100)}',
        'Nr_normy': chance.randrange(2), 'Nr_jezyka': chance.randrange(5),
        'Hsily_wszystkie': chance.randrange(2), 'Nr_betonu': chance.randrange(1, 5),
        'Stopa_betonowa': chance.randrange(2), 'Nr_stali': chance.randrange(1, 7),
        'Dlug_plyty_mm': length, 'Szer_plyty_mm': width,
        'Kotwy': [{'x': chance.randrange(-length // 2, length // 2 + 1),
                   'y': chance.randrange(-width // 2, width // 2 + 1),
                   'fi': fi if chance.random() < .8 else chance.choice(diameters)}
                  for _ in range(count)],
        'Przypadki': [],
    }
    if chance.random() < .2:
        task['Tryb_wsp_n'], task['Wsp_n_val'] = 1, round(chance.uniform(3, 20), 2)
    for _ in range(chance.choice([1, 1, 2, 3, 6])):
        N = round(10 ** chance.uniform(-1, 3.3), chance.randrange(3))
        if chance.random() < .04:
            N = -N
        task['Przypadki'].append({
            'N': N, 'M1': chance.choice([0, round(N * length * chance.uniform(-8e-4, 8e-4), 2)]),
            'M2': chance.choice([0, round(N * width * chance.uniform(-8e-4, 8e-4), 2)]),
            'Vx': chance.choice([0, round(N * chance.uniform(-.6, .6), 1)]),
            'Vy': chance.choice([0, round(N * chance.uniform(-.6, .6), 2)])})
    return task


def tasks():
    chance = random.Random(20)
    chosen = []
    for path in GOLDEN:
        with open(path, encoding='utf-8') as lines:
            read = [json.loads(line) for line in lines]
        chance.shuffle(read)
        chosen += read[:TASKS // (2 * len(GOLDEN))]
    while len(chosen) < TASKS:
        chosen.append(random_task(chance))
    return chosen


def read_pages(output):
    """Pairs of result and page."""
    at = 0
    while at < len(output):
        end = output.index(b'\n', at)
        result = json.loads(output[at:end])
        at = end + 1
        end = output.index(b'\n', at)
        size = int(output[at:end])
        at = end + 1
        yield result, output[at:at + size].decode('utf-8')
        at += size


def number_in(text):
    return float(text.replace(' ', ''))


def printed(numbers, case, symbol):
    return float(numbers[case, symbol].printed)


def report_lines(result, numbers):
    """Pairs of what the report gives and what the sheet prints, each with its place."""
    if not result.get('Obliczone') or result.get('Blad') or result.get('Przerwij_obliczenia'):
        return
    if result['Rownowaga'] is None:  # an anchor without an area: the sheet gives no stresses
        return
    ratios = iter(result['Tekst_przekroczenia'])
    for case, told in enumerate(result['Przypadki'], 1):
        for line, mark in zip(told['Wiersze'], told['Znaki']):
            anchor = re.match(r'(\d+)\s+(-?[\d ]*\.\d+) MPa\s+(-?[\d ]*\.\d+) kN', line)
            if mark == 1:
                yield case, 'omega_s', number_in(next(ratios).replace('=', ''))
            elif anchor:
                yield case, f'sigma_{anchor[1]}_s', number_in(anchor[2])
                yield case, f'F_{anchor[1]}_s', number_in(anchor[3])
            elif re.search(r'\d\.\d+ MPa', line):
                yield case, 'sigma_b_s', number_in(re.search(r'(\d[\d ]*\.\d+) MPa', line)[1])
        points = re.findall(r'\((-?\d+),(-?\d+)\)', told['Wiersz_strefy'] or '')
        if len(points) == 2 and (case, 'xA_s') in numbers:
            for symbol, point in zip(('xA_s', 'yA_s', 'xB_s', 'yB_s'), points[0] + points[1]):
                yield case, symbol, float(point)
    plate = result.get('Blacha')
    if plate and plate['Wiersze_blachy']:
        for check, thickness in enumerate(plate['Spr_blachy'], 1):
            if thickness > 0:
                yield 0, f'p{check}_g', float(thickness)
    anchor = result.get('Kotwa')
    if anchor and anchor['Wiersze_kotwy']:
        length = re.search(r'-(\d+)$', anchor['Wiersze_kotwy'][0])
        yield 0, 'k_Lc', float(length[1])
        capacity = re.search(r'([\d ]+\.\d) kN', anchor['Wiersze_kotwy'][1])
        yield 0, 'k_N', number_in(capacity[1])


class Recomputed(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tasks = tasks()
        stream = '\n'.join(json.dumps(task) for task in cls.tasks) + '\n'
        made = subprocess.run([PAGES, DATA, '-platform', 'offscreen'], input=stream.encode(),
                              stdout=subprocess.PIPE, check=True, timeout=800)
        cls.pages = [(result, numbers_of(page)) for result, page in read_pages(made.stdout)]

    def test_every_formula_gives_its_number(self):
        self.assertEqual(len(self.pages), TASKS)
        formulas = 0
        for task, (_, numbers) in zip(self.tasks, self.pages):
            wrong = wrong_numbers(numbers)
            self.assertEqual(wrong[:5], [], json.dumps(task))
            formulas += sum(1 for number in numbers.values() if number.formula)
        self.assertGreater(formulas, 100 * TASKS)

    def test_the_numbers_of_the_reports_are_printed(self):
        compared = 0
        for task, (result, numbers) in zip(self.tasks, self.pages):
            for case, symbol, told in report_lines(result, numbers):
                self.assertEqual(printed(numbers, case, symbol), told,
                                 f'case {case}, {symbol}: {json.dumps(task)}')
                compared += 1
        self.assertGreater(compared, 3000)

    def test_the_exact_values_are_those_of_the_result(self):
        compared = 0
        for result, numbers in self.pages:
            for case, exact in enumerate(result.get('Rownowaga') or [], 1):
                if not exact['istnieje'] or (case, 'sigma_b_e') not in numbers:
                    continue
                size = max(1.0, abs(exact['Sigma_b']))
                self.assertAlmostEqual(numbers[case, 'sigma_b_e'].value / size,
                                       exact['Sigma_b'] / size, delta=1e-9)
                for i, stress in enumerate(exact['Sigma_kotwy'], 1):
                    self.assertAlmostEqual(numbers[case, f'sigma_{i}_e'].value / max(size, abs(stress)),
                                           stress / max(size, abs(stress)), delta=1e-9)
                compared += 1
        self.assertGreater(compared, TASKS)

    def test_the_exact_stresses_balance_the_load(self):
        for _, numbers in self.pages:
            for (_, symbol), number in numbers.items():
                if re.fullmatch(r'd(N|M1|M2)_e', symbol):
                    self.assertLess(abs(number.value), 1e-6, symbol)  # % of the load

    def test_the_rows_of_the_table_are_used_as_the_cases_that_they_are(self):
        compared = largest = 0
        for _, numbers in self.pages:
            for (case, symbol), number in numbers.items():
                taken = re.fullmatch(r'k(\d)_([btvi])', symbol)
                exact = taken and numbers.get((int(taken[1]), f'u_{taken[2]}_e'))
                if exact:
                    self.assertAlmostEqual(number.value / max(1.0, exact.value),
                                           exact.value / max(1.0, exact.value), delta=1e-9)
                    compared += 1
                largest += symbol.startswith('k_max_') and number.formula.startswith('max(')
        self.assertGreater(compared, 3 * TASKS)
        self.assertGreater(largest, TASKS)


if __name__ == '__main__':
    unittest.main(argv=sys.argv[:1], verbosity=2)
