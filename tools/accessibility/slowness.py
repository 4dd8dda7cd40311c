# SPDX-License-Identifier: MIT
"""Slows a survey of a small home down, so that its progress can be observed: strace delays each read of a directory.
The application itself is unchanged."""
import contextlib
import os
import signal
import shutil
import subprocess
import time

from session import Unusable

# With eight threads, some 600 folders that are each read twice take about a minute.
DELAY_MICROSECONDS = 400_000


@contextlib.contextmanager
def slowed(process):
    if shutil.which("strace") is None:
        raise Unusable("strace is missing; scripts/packages.txt names the packages")
    command = ["strace", "-f", "-q", "-p", str(process.pid), "-e", "trace=getdents64",
               "-e", f"inject=getdents64:delay_enter={DELAY_MICROSECONDS}", "-o", "/dev/null"]
    tracer = subprocess.Popen(command, stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    try:
        _wait_until_attached(process, tracer)
        yield
    finally:
        tracer.send_signal(signal.SIGINT)
        tracer.communicate()


def _wait_until_attached(process, tracer):
    """Waits until all threads are traced, before the first one reads a folder."""
    tasks = f"/proc/{process.pid}/task"
    while tracer.poll() is None:
        traced = []
        for task in os.listdir(tasks):
            with contextlib.suppress(OSError), open(f"{tasks}/{task}/status") as status:
                traced.append(f"TracerPid:\t{tracer.pid}\n" in status.read())
        if traced and all(traced):
            return
        time.sleep(0.05)
    raise Unusable(f"strace could not attach: {tracer.stderr.read()}")
