#!/usr/bin/env python3
"""Runs every test of a build, many of a binary in one process, and says how far it is.

usage: run_tests.py BUILD [--jobs N]
A process of its own for each of some three thousand tests costs ten times what the tests themselves need. Each binary
is split into shards of about SHARD tests; what is no gtest binary is run by ctest afterwards. ctest names and runs
every single test as well: `ctest --test-dir BUILD -R NAME`.
"""
import argparse, concurrent.futures, glob, os, re, subprocess, sys, tempfile, threading, time

SHARD = 120
FEW = 10  # tests of a binary that has no more are long: each is a shard of its own
SILENCE = 300  # seconds without a line of output, then the test that runs is said to hang
LABEL = "gtest"  # of the tests that ctest need not run again


def environment_of(build):
    """What ctest sets for each test, from the file that CMake writes beside it."""
    with open(os.path.join(build, "tests", "test_environment.txt"), encoding="utf-8") as lines:
        return dict(line.strip().split("=", 1) for line in lines if "=" in line)


def count_of(binary, env):
    listed = subprocess.run([binary, "--gtest_list_tests"], env=env, stdout=subprocess.PIPE, text=True, check=True).stdout
    return sum(1 for line in listed.split("\n") if line.startswith("  "))


class Shard:
    """A part of the tests of one binary, run in one process."""

    def __init__(self, binary, index, total, expected):
        self.binary, self.index, self.total, self.expected = binary, index, total, expected

    def __str__(self):
        part = f" {self.index + 1}/{self.total}" if self.total > 1 else ""
        return os.path.basename(self.binary) + part

    def run(self, env):
        env = dict(env, GTEST_TOTAL_SHARDS=str(self.total), GTEST_SHARD_INDEX=str(self.index))
        self.started = time.monotonic()
        with tempfile.NamedTemporaryFile("w+b") as output:
            process = subprocess.Popen([self.binary, "--gtest_color=no"], env=env, stdin=subprocess.DEVNULL, stdout=output,
                                       stderr=subprocess.STDOUT)
            hung = not wait_while_it_writes(process, output.name)
            output.seek(0)
            self.output = output.read().decode(errors="replace")
        self.seconds = time.monotonic() - self.started
        self.problem = problem_of(self.output, process.returncode, hung)


def wait_while_it_writes(process, path):
    """False when it was ended because it had not written for SILENCE seconds."""
    size, since = 0, time.monotonic()
    while True:
        try:
            process.wait(timeout=1)
            return True
        except subprocess.TimeoutExpired:
            now = os.path.getsize(path)
            if now != size:
                size, since = now, time.monotonic()
            elif time.monotonic() - since > SILENCE:
                process.kill()
                process.wait()
                return False


def problem_of(output, code, hung):
    """Why a shard has not passed; empty when it has."""
    begun = re.findall(r"^\[ RUN      \] (\S+)", output, re.M)
    ended = re.findall(r"^\[       OK \] (\S+)|^\[  FAILED  \] (\S+) \(|^\[  SKIPPED \] (\S+) \(", output, re.M)
    if hung:
        return f"{begun[-1] if begun else 'the start'} hangs: no output for {SILENCE} s"
    failed = sorted({names[1].rstrip(",") for names in ended if names[1]})
    if failed:
        return "failed: " + " ".join(failed)
    if len(begun) > len(ended):
        return f"{begun[-1]} ended the process (exit {code})"
    return f"exit {code} after its tests" if code else ""


def ran(shard):
    found = re.search(r"^\[==========\] (\d+) tests? from \d+ test suites? ran\.", shard.output, re.M)
    return int(found.group(1)) if found else 0


def shards_of(binaries, env):
    for binary in binaries:
        count = count_of(binary, env)
        total = round(count / SHARD) or (count if count < FEW else 1)
        for index in range(total):
            yield Shard(binary, index, total, (count + total - 1 - index) // total)


def part_of_failures(output):
    """The output of what failed, without the tests that passed, and what the process said at its end."""
    tests, _, end = output.partition("[----------] Global test environment tear-down")
    kept = [part for part in re.split(r"(?m)^(?=\[ RUN      \])", tests) if not re.search(r"(?m)^\[       OK \]", part)]
    return ("".join(kept) + end)[-20000:]


def run_shards(shards, jobs, env):
    lock, done, failures = threading.Lock(), 0, []

    def one(shard):
        nonlocal done
        shard.run(env)
        if not shard.problem and ran(shard) != shard.expected:
            shard.problem = f"{ran(shard)} tests ran, {shard.expected} were expected"
        with lock:
            done += 1
            print(f"[{done:3}/{len(shards)}] {shard}: {ran(shard)} tests, {shard.seconds:.1f} s"
                  + (f"  {shard.problem}" if shard.problem else ""), flush=True)
            if shard.problem:
                failures.append(f"{shard}: {shard.problem}")
                print(part_of_failures(shard.output), flush=True)

    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        list(pool.map(one, shards))
    return failures


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("build")
    arguments.add_argument("--jobs", type=int, default=os.cpu_count())
    given = arguments.parse_args()
    env = dict(os.environ, **environment_of(given.build))
    binaries = sorted(path for path in glob.glob(os.path.join(given.build, "bin", "test_*"))
                      if os.access(path, os.X_OK) and os.path.isfile(path))
    if not binaries:
        sys.exit(f"{given.build}/bin holds no tests")
    shards = list(shards_of(binaries, env))
    started = time.monotonic()
    failures = run_shards(shards, given.jobs, env)
    print(f"{sum(ran(shard) for shard in shards)} tests in {time.monotonic() - started:.0f} s", flush=True)
    rest = subprocess.run(["ctest", "--test-dir", given.build, "-LE", LABEL, "--output-on-failure", f"-j{given.jobs}"])
    for failure in failures:
        print("FAILED", failure)
    sys.exit(1 if failures or rest.returncode else 0)


if __name__ == "__main__":
    main()
