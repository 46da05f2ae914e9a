"""Draws mutants and judges them, two at a time."""

import collections
import random
import threading
import time

from .results import Results
from .slot import INVALID, SURVIVED, Slot


class Run:
    """Draws mutants evenly over the folders and judges them, two at a time."""

    def __init__(self, mutants, equivalents, reach, seed, count):
        self.reach, self.seed = reach, seed
        self.equivalents = equivalents
        self.results = Results()
        by_folder = collections.defaultdict(list)
        for mutant in mutants:
            by_folder[mutant.folder].append(mutant)
        self.waiting = {}
        for folder, listed in sorted(by_folder.items()):
            listed.sort(key=lambda mutant: (mutant.file, mutant.start, mutant.new))
            random.Random(f"{seed}:{folder}").shuffle(listed)
            self.waiting[folder] = collections.deque(listed)
        self.quota = shares({folder: len(listed) for folder, listed in self.waiting.items()}, count)
        self.counted = collections.Counter()
        self.table = {folder: collections.Counter() for folder in self.waiting}
        self.survivors = []
        self.lock = threading.Lock()
        self.begin = time.monotonic()
        self.judged = 0

    def next(self):
        """The next mutant that has no verdict yet; null at the end."""
        with self.lock:
            while True:
                open_folders = [folder for folder in self.waiting
                                if self.waiting[folder] and self.counted[folder] < self.quota[folder]]
                if not open_folders:
                    return None
                folder = min(open_folders, key=lambda each: self.counted[each] / self.quota[each])
                mutant = self.waiting[folder].popleft()
                if self.equivalents.reason(mutant):
                    self.table[folder]["equivalent"] += 1
                    continue
                self.counted[folder] += 1
                known = self.results.find(mutant)
                if not known:
                    return mutant
                self.count(mutant, known["verdict"])

    def count(self, mutant, verdict):
        if verdict == INVALID:
            self.counted[mutant.folder] -= 1
            return
        self.table[mutant.folder][verdict] += 1
        if verdict == SURVIVED:
            self.survivors.append(mutant)

    def work(self, slot):
        while mutant := self.next():
            begin = time.monotonic()
            verdict, test = slot.judge(mutant)
            seconds = time.monotonic() - begin
            with self.lock:
                self.judged += 1
                self.results.add(mutant, self.seed, verdict, test, seconds)
                self.count(mutant, verdict)
                if verdict != INVALID:
                    print(f"{verdict} {test} ({seconds:.0f} s): {mutant.described()}", flush=True)

    def run(self):
        slots = [Slot(number, self.reach) for number in (1, 2)]
        for slot in slots:
            slot.prepare()
        self.begin = time.monotonic()
        workers = [threading.Thread(target=self.work, args=(slot,), daemon=True) for slot in slots]
        for worker in workers:
            worker.start()
        for worker in workers:
            worker.join()
        return time.monotonic() - self.begin


def shares(sizes, count):
    """Shares of \a count: equal, except that a small folder gives what it lacks to the others."""
    quota = dict.fromkeys(sizes, 0)
    while count > 0 and (growing := [folder for folder in sizes if quota[folder] < sizes[folder]]):
        for folder in growing[:count]:
            quota[folder] += 1
        count -= min(count, len(growing))
    return quota
