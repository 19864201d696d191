#!/usr/bin/env python3
"""Prints ratios of medians from the JSON files of bench/run.

Each table has a legend. A ratio that misses its aim is marked with <.
"""
import argparse
import json
import subprocess
import sys
from collections import defaultdict

PEER_AIM, COPY_AIM, FORK_AIM = 0.95, 0.9, 1.1
LEVELS = ["the baseline (SSSE3)", "AVX2", "AVX-512"]

LEGEND = f"""
  zepm       the library's time for one call (medians of all repetitions)
  peer/zepm  the fastest peer's time divided by it: above 1 zepm is faster; < is below {PEER_AIM}
  spread     the standard deviation in percent of the mean, zepm's and that peer's
  memcpy     the time of copying as many bytes as the call reads and writes, divided by zepm's; < is below {COPY_AIM}
  loop       the same for a copy in a plain loop"""
FORK_LEGEND = f"""
  work       the call's estimate of its elements read and written
  one, two   the time of one call with one thread and with two
  two/one    above 1 the second thread costs time; < is above {FORK_AIM}"""


class Times:
    """The medians of one file, by case and contender, and what went wrong."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            data = json.load(file)
        self.context = data["context"]
        self.cases = defaultdict(dict)
        self.spread = defaultdict(dict)
        self.failed = []
        for run in sorted(data["benchmarks"], key=lambda run: run["family_index"]):  # they ran interleaved
            name = run["run_name"]
            for ending in ("/real_time", "/manual_time"):
                name = name.removesuffix(ending)
            name = name.split("/iterations:")[0]
            case, contender = name.rsplit("/", 1)
            if run.get("error_occurred"):
                if run["run_name"] not in self.failed:
                    self.failed.append(run["run_name"])
            elif run.get("aggregate_name") == "median":
                # One thread's own time; for several threads, the clock's.
                clock = "real_time" if contender.startswith("threads:") else "cpu_time"
                self.cases[case][contender] = run[clock]
                if "work" in run:
                    self.cases[case]["work"] = run["work"]
            elif run.get("aggregate_name") == "cv":
                self.spread[case][contender] = 100 * run["cpu_time"]


def time_text(nanoseconds):
    for unit, factor in (("ns", 1), ("us", 1e3), ("ms", 1e6)):
        if nanoseconds < 1000 * factor:
            break
    return f"{nanoseconds / factor:.1f} {unit}"


def ratio_text(ratio, misses):
    return f"{ratio:7.2f}{'<' if misses else ' '}"


def print_families(title, times, misses_only):
    rows = []
    for case, contenders in times.cases.items():
        if "zepm" not in contenders:
            continue
        ours = contenders["zepm"]
        peers = {name: t for name, t in contenders.items() if name != "zepm" and not name.startswith("copy_")}
        copies = [contenders.get(f"copy_{way}") for way in ("memcpy", "loop")]
        cells, misses = "", False
        if peers:
            best = min(peers, key=peers.get)
            misses = peers[best] / ours < PEER_AIM
            cells += ratio_text(peers[best] / ours, misses) + f" {best:<14}"
            cells += f" {times.spread[case].get('zepm', 0):3.0f} {times.spread[case].get(best, 0):3.0f} %"
        if all(copies):
            slow = copies[1] / ours < COPY_AIM
            misses = misses or slow
            cells += ratio_text(copies[0] / ours, copies[0] / ours < COPY_AIM) + ratio_text(copies[1] / ours, slow)
        if misses or not misses_only:
            rows.append(f"{case:<44}{time_text(ours):>10}  {cells}")
    if rows:
        print(f"\n{title}")
        print(f"{'case':<44}{'zepm':>10}  {'peer/zepm':>8} {'best peer':<14} {'spread':>9}   memcpy    loop")
        print("\n".join(rows))


def print_forks(title, times, misses_only):
    worst = {}
    rows = []
    for case, contenders in times.cases.items():
        if "threads:1" not in contenders or "threads:2" not in contenders:
            continue
        ratio = contenders["threads:2"] / contenders["threads:1"]
        mode = case.split("/")[0]
        worst[mode] = max(worst.get(mode, (0, "")), (ratio, case))
        misses = ratio > FORK_AIM
        if misses or not misses_only:
            rows.append(f"{case:<44}{contenders.get('work', 0):>12.0f}{time_text(contenders['threads:1']):>11}"
                        f"{time_text(contenders['threads:2']):>11}{ratio:8.2f}{'<' if misses else ''}")
    if rows:
        print(f"\n{title}{FORK_LEGEND}")
        print(f"{'two threads against one':<44}{'work':>12}{'one':>11}{'two':>11}{'two/one':>8}")
        print("\n".join(rows))
    for mode, (ratio, case) in worst.items():
        print(f"worst of {mode}: {ratio:.2f} at {case}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--misses", action="store_true", help="print only what misses its aim")
    parser.add_argument("files", nargs="+", metavar="JSON")
    arguments = parser.parse_args()
    machine = [line.split(":", 1)[1].strip() for line in subprocess.run(["lscpu"], capture_output=True, text=True,
               check=False).stdout.splitlines() if line.startswith("Model name")]
    failed = []
    is_first = True
    for path in arguments.files:
        try:
            times = Times(path)
        except (json.JSONDecodeError, KeyError):
            print(f"{path}: no results (skipped, or no name matched)")
            continue
        context = times.context
        if is_first:
            is_first = False
            print(f"machine: {', '.join(machine)}, {context['num_cpus']} processors; date: {context['date']}{LEGEND}")
        level = int(context.get("level", -1))
        title = (f"zepm at {LEVELS[level] if 0 <= level < len(LEVELS) else 'an unknown level'}, peers compiled for {context.get('peers')}, load "
                 f"{context['load_avg'][0]:.1f} at the start")
        print_families(title, times, arguments.misses)
        print_forks(title, times, arguments.misses)
        failed += times.failed
    for name in failed:
        print(f"FAILED: {name}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
