#!/usr/bin/python3
"""Start-up timing for bench/startup.sh.

Launches each program several times on an X display that the caller provides,
and measures, with the monotonic clock, the wall time from just before the
launch until

  map:  a top-level window with the expected title (and, when the property is
        set, the launched process id in _NET_WM_PID) is mapped, and
  idle: the program has then gone quiet: from that moment on, for --quiet-ms,
        all of its threads together used at most --budget-ms of CPU time and
        none was seen in uninterruptible sleep (disk wait).

The map is seen through X events (SubstructureNotify on the root window,
selected before the launch), so it is noticed as soon as the X server
reports it, with no polling interval. CPU time is read from
/proc/PID/task/*/schedstat (nanoseconds) every --sample-ms; where the kernel
lacks schedstat, utime+stime from /proc/PID/task/*/stat is used instead (clock
tick resolution). The idle time reported is the first sample of the quiet
stretch, so it is late by at most one sample interval, and the quiet stretch
itself is not counted.

Each run gets a fresh HOME (and XDG runtime folder) made with mkdtemp and
removed afterwards. The programs alternate in ABBA order (A B, B A, A B, ...),
after one untimed warm-up run of each. Every launched process is killed (its
whole session) before the next run starts, also when the probe is interrupted.

Usage: startup_probe.py --display :N [--runs N] [--timeout S] NAME=PATH=TITLE ...
The first program is the one under test, the second the reference; the ratio
printed is median(first) / median(second) of the idle times.
"""

import argparse
import os
import select
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

try:
    from Xlib import X, display as xdisplay, error as xerror
except ImportError:
    sys.exit("startup_probe: python3-xlib is missing (apt-get install python3-xlib)")

CLOCK_TICK_NS = 1_000_000_000 // os.sysconf("SC_CLK_TCK")


def now_ns():
    return time.monotonic_ns()


class Program:
    def __init__(self, text):
        parts = text.split("=", 2)
        if len(parts) != 3 or not all(parts):
            raise argparse.ArgumentTypeError(f"expected NAME=PATH=TITLE, got {text!r}")
        self.name, self.path, self.title = parts
        if not os.access(self.path, os.X_OK):
            raise argparse.ArgumentTypeError(f"not an executable: {self.path}")
        self.map_ms = []
        self.idle_ms = []
        self.failures = 0


class RunFailed(Exception):
    pass


def read_cpu_and_wait(pid):
    """Total CPU time (ns) of all threads of pid, and whether any is in D state.

    Returns None when the process is gone."""
    task_dir = f"/proc/{pid}/task"
    try:
        tids = os.listdir(task_dir)
    except FileNotFoundError:
        return None
    total = 0
    disk_wait = False
    for tid in tids:
        try:
            with open(f"{task_dir}/{tid}/stat", "rb") as f:
                stat = f.read()
        except (FileNotFoundError, ProcessLookupError):
            continue  # thread ended between listdir and open
        fields = stat[stat.rindex(b")") + 2:].split()
        state = fields[0]
        if state == b"Z" and tid == str(pid):
            return None
        if state == b"D":
            disk_wait = True
        try:
            with open(f"{task_dir}/{tid}/schedstat", "rb") as f:
                total += int(f.read().split()[0])
        except (FileNotFoundError, ProcessLookupError, ValueError, IndexError):
            # utime and stime are fields 14 and 15 of stat (11 and 12 here)
            total += (int(fields[11]) + int(fields[12])) * CLOCK_TICK_NS
    return total, disk_wait


class Probe:
    def __init__(self, args):
        self.args = args
        self.display = xdisplay.Display(args.display)
        # errors of requests without replies (selecting events on a window that
        # is already gone) are expected and harmless
        self.display.set_error_handler(lambda *_: None)
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self.atom_net_wm_name = self.display.intern_atom("_NET_WM_NAME")
        self.atom_net_wm_pid = self.display.intern_atom("_NET_WM_PID")
        self.atom_utf8 = self.display.intern_atom("UTF8_STRING")
        self.display.sync()
        self.process = None
        self.base_env = dict(os.environ)
        for key in ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME",
                    "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "SESSION_MANAGER",
                    "WAYLAND_DISPLAY", "QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE"):
            self.base_env.pop(key, None)
        self.base_env["DISPLAY"] = args.display
        self.base_env["QT_QPA_PLATFORM"] = "xcb"

    # --- X side -------------------------------------------------------------

    def drain_events(self):
        self.display.sync()
        while self.display.pending_events():
            self.display.next_event()

    def window_matches(self, window, program, pid):
        try:
            prop = window.get_full_property(self.atom_net_wm_name, self.atom_utf8)
            name = prop.value.decode("utf-8", "replace") if prop else None
            if name is None:
                name = window.get_wm_name()
                if isinstance(name, bytes):
                    name = name.decode("latin-1")
            if name != program.title:
                return False
            prop = window.get_full_property(self.atom_net_wm_pid, X.AnyPropertyType)
            if prop and len(prop.value) and int(prop.value[0]) != pid:
                return False
            return True
        except (xerror.BadWindow, xerror.BadDrawable, xerror.BadAtom):
            return False

    def wait_for_map(self, program, pid, deadline):
        """Returns the monotonic time (ns) at which the window's map was seen."""
        unnamed = set()  # mapped top-levels without the title yet: watch their properties
        while True:
            while self.display.pending_events():
                event = self.display.next_event()
                seen = now_ns()
                if event.type == X.MapNotify:
                    window = event.window
                    if self.window_matches(window, program, pid):
                        return seen
                    try:
                        window.change_attributes(event_mask=X.PropertyChangeMask)
                        unnamed.add(window.id)
                    except (xerror.BadWindow, xerror.BadAccess):
                        pass
                elif event.type == X.PropertyNotify and event.window.id in unnamed:
                    if self.window_matches(event.window, program, pid):
                        return seen
                elif event.type in (X.UnmapNotify, X.DestroyNotify):
                    unnamed.discard(event.window.id)
            if self.process.poll() is not None:
                raise RunFailed(f"exited with status {self.process.returncode} before its window was shown")
            remaining = deadline - now_ns()
            if remaining <= 0:
                raise RunFailed(f"no mapped window titled {program.title!r} within {self.args.timeout:g} s")
            select.select([self.display], [], [], min(remaining / 1e9, 0.05))

    # --- process side ---------------------------------------------------------

    def wait_for_idle(self, pid, map_ns, deadline):
        """Returns the monotonic time (ns) at which the program went quiet."""
        quiet_ns = int(self.args.quiet_ms * 1e6)
        budget_ns = int(self.args.budget_ms * 1e6)
        sample_s = self.args.sample_ms / 1000.0
        start_t = None
        start_cpu = None
        while True:
            sample = read_cpu_and_wait(pid)
            t = now_ns()
            if sample is None:
                raise RunFailed("exited before it went idle")
            cpu, disk_wait = sample
            if start_t is None or disk_wait or cpu - start_cpu > budget_ns:
                # still busy: the quiet stretch can start at this sample at the earliest
                start_t, start_cpu = max(t, map_ns), cpu
            elif t - start_t >= quiet_ns:
                return start_t
            if t >= deadline:
                raise RunFailed(f"not idle within {self.args.timeout:g} s")
            time.sleep(sample_s)

    def kill_process(self):
        process, self.process = self.process, None
        if process is None:
            return
        for sig, wait_s in ((signal.SIGTERM, 3), (signal.SIGKILL, 5)):
            try:
                os.killpg(process.pid, sig)
            except ProcessLookupError:
                pass
            try:
                process.wait(wait_s)
                break
            except subprocess.TimeoutExpired:
                continue
        # the session may hold helpers that outlived the leader
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass

    def run_once(self, program):
        """One launch. Returns (map_ms, idle_ms)."""
        home = tempfile.mkdtemp(prefix=f"quillet-bench-{program.name}-home-")
        log_path = os.path.join(home, "output.log")
        try:
            runtime = os.path.join(home, ".runtime")
            os.mkdir(runtime, 0o700)
            env = dict(self.base_env, HOME=home, XDG_RUNTIME_DIR=runtime)
            self.drain_events()
            with open(log_path, "wb") as log:
                t0 = now_ns()
                self.process = subprocess.Popen(
                    [program.path], env=env, cwd=home, stdin=subprocess.DEVNULL,
                    stdout=log, stderr=subprocess.STDOUT, start_new_session=True)
            deadline = t0 + int(self.args.timeout * 1e9)
            try:
                map_ns = self.wait_for_map(program, self.process.pid, deadline)
                idle_ns = self.wait_for_idle(self.process.pid, map_ns, deadline)
            except RunFailed as failure:
                self.kill_process()
                with open(log_path, "rb") as log:
                    tail = log.read()[-2000:].decode("utf-8", "replace").rstrip()
                message = f"{program.name}: {failure}"
                if tail:
                    message += "\n  program output:\n    " + tail.replace("\n", "\n    ")
                raise RunFailed(message) from None
            self.kill_process()
            return (map_ns - t0) / 1e6, (idle_ns - t0) / 1e6
        finally:
            self.kill_process()
            shutil.rmtree(home, ignore_errors=True)


def summary(values):
    if not values:
        return "n/a"
    return (f"median {statistics.median(values):8.1f}   min {min(values):8.1f}   "
            f"max {max(values):8.1f}")


def main():
    parser = argparse.ArgumentParser(description="Measure start-up time to a shown, idle window.")
    parser.add_argument("--display", required=True)
    parser.add_argument("--runs", type=int, default=10)
    parser.add_argument("--warmup", type=int, default=1, help="untimed runs of each program first")
    parser.add_argument("--timeout", type=float, default=20.0, help="seconds allowed per run")
    parser.add_argument("--quiet-ms", type=float, default=100.0)
    parser.add_argument("--budget-ms", type=float, default=0.25)
    parser.add_argument("--sample-ms", type=float, default=0.5)
    parser.add_argument("--pause-ms", type=float, default=200.0, help="pause between runs")
    parser.add_argument("--target", type=float, default=1.5)
    parser.add_argument("programs", nargs=2, type=Program, metavar="NAME=PATH=TITLE")
    args = parser.parse_args()
    if args.runs < 1:
        parser.error("--runs must be at least 1")

    def on_signal(signum, _frame):
        raise SystemExit(128 + signum)
    signal.signal(signal.SIGTERM, on_signal)
    signal.signal(signal.SIGHUP, on_signal)

    probe = Probe(args)
    first, second = args.programs
    try:
        for i in range(args.warmup):
            for program in (first, second):
                try:
                    probe.run_once(program)
                except RunFailed as failure:
                    print(f"warm-up failed: {failure}", file=sys.stderr)
                    return 2
                time.sleep(args.pause_ms / 1000)

        width = max(len(first.name), len(second.name), 7)
        print(f"{'run':>4}  {'program':<{width}}  {'mapped ms':>10}  {'idle ms':>10}")
        for i in range(args.runs):
            order = (first, second) if i % 2 == 0 else (second, first)
            for program in order:
                try:
                    map_ms, idle_ms = probe.run_once(program)
                except RunFailed as failure:
                    program.failures += 1
                    print(f"{i + 1:>4}  {program.name:<{width}}  {'failed':>10}", flush=True)
                    print(f"      {failure}", file=sys.stderr, flush=True)
                else:
                    program.map_ms.append(map_ms)
                    program.idle_ms.append(idle_ms)
                    print(f"{i + 1:>4}  {program.name:<{width}}  {map_ms:10.1f}  {idle_ms:10.1f}",
                          flush=True)
                time.sleep(args.pause_ms / 1000)
    finally:
        probe.kill_process()

    print()
    for label, attr in (("mapped", "map_ms"), ("idle", "idle_ms")):
        for program in (first, second):
            print(f"{label:<7} {program.name:<{width}}  {summary(getattr(program, attr))}   (ms)")
    for program in (first, second):
        if program.failures:
            print(f"{program.name}: {program.failures} of {args.runs} runs failed")
    if not first.idle_ms or not second.idle_ms:
        print("startup median: not enough successful runs")
        return 1
    print()
    map_ratio = statistics.median(first.map_ms) / statistics.median(second.map_ms)
    print(f"mapped median: {first.name} {statistics.median(first.map_ms):.1f} ms, "
          f"{second.name} {statistics.median(second.map_ms):.1f} ms, ratio {map_ratio:.2f}")
    q, m = statistics.median(first.idle_ms), statistics.median(second.idle_ms)
    ratio = q / m
    print(f"startup median: {first.name} {q:.1f} ms, {second.name} {m:.1f} ms, ratio {ratio:.2f}")
    verdict = "met" if ratio <= args.target else "NOT met"
    print(f"target ratio <= {args.target:.2f}: {verdict}")
    return 0 if not (first.failures or second.failures) else 1


if __name__ == "__main__":
    sys.exit(main())
