# SPDX-License-Identifier: MIT
"""Runs the application on a sample home, with a display, a session bus and an accessibility bus of its own.

Qt's `offscreen` platform does not connect to the accessibility bus, so the display is Xvfb and the platform `xcb`.
Every process is a child of ours in its own process group, and is terminated with it."""
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
# Long enough for the busiest machine, so that it only limits the wait for what never comes.
START_SECONDS = 120


class Unusable(Exception):
    """The walk cannot run because of the system or the application."""


class Session:
    """A context manager: the home, the display and the buses exist only inside."""

    def __init__(self, program, scale=0.01):
        self.program = Path(program).resolve()
        self.scale = scale
        self.processes = []

    def __enter__(self):
        # Terminate the processes also on a timeout or an interrupt.
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(2))
        self.folder = Path(tempfile.mkdtemp(prefix="zelk-accessibility-"))
        self.log_path = self.folder / "log"
        self.log = open(self.log_path, "wb")
        try:
            self._start()
        except BaseException:
            self.__exit__(*sys.exc_info())
            raise
        return self

    def __exit__(self, kind, error, trace):
        for process in reversed(self.processes):
            self._end(process)
        self.log.close()
        if kind is not None and not issubclass(kind, KeyboardInterrupt):
            sys.stderr.write(self.log_path.read_text(errors="replace")[-4000:])
        shutil.rmtree(self.folder, ignore_errors=True)

    def _end(self, process):
        """Terminates the whole process group, which may outlive its first process."""
        for sign in (signal.SIGTERM, signal.SIGKILL):
            try:
                os.killpg(process.pid, sign)
            except ProcessLookupError:
                break
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                continue

    def _spawn(self, command, **options):
        if shutil.which(command[0]) is None:
            raise Unusable(f"{command[0]} is missing; scripts/packages.txt names the packages")
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=self.log,
                                   stderr=self.log, start_new_session=True, **options)
        self.processes.append(process)
        return process

    def _spawn_announcing(self, *command):
        """Starts a server that writes its address to the descriptor given as {}, and returns the address."""
        reading, writing = os.pipe()
        try:
            process = self._spawn([word.format(writing) for word in command], pass_fds=[writing])
        finally:
            os.close(writing)
        with os.fdopen(reading, "rb") as pipe:
            line = pipe.readline().decode().strip()
        if not line:
            raise Unusable(f"{command[0]} did not start (status {process.wait()})")
        return line

    @staticmethod
    def _wait(ready, what):
        until = time.monotonic() + START_SECONDS
        while not ready():
            if time.monotonic() > until:
                raise Unusable(f"{what} did not start")
            time.sleep(0.05)

    def _start(self):
        self.home = self.folder / "home"
        runtime = self.folder / "runtime"
        runtime.mkdir(mode=0o700)
        sample = [str(ROOT / "tools/sample_home"), str(self.home)]
        for options in (["--system", "linux", "--scale", str(self.scale), "--history"], ["--grow"]):
            subprocess.run([*sample, *options], check=True, stdout=self.log)
        self.environment = {
            "HOME": str(self.home), "PATH": os.environ["PATH"], "LANG": "C.UTF-8", "TMPDIR": str(self.folder),
            "XDG_RUNTIME_DIR": str(runtime),
        }
        self.environment["DISPLAY"] = ":" + self._spawn_announcing(
            "Xvfb", "-displayfd", "{}", "-screen", "0", "1600x1100x24", "-nolisten", "tcp", "-noreset")
        self._start_window_manager()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._spawn_announcing(
            "dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address={}")
        self._start_accessibility()
        # This process uses the same buses. An inherited address would take precedence.
        os.environ.update(self.environment)
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)

    def _start_window_manager(self):
        """Without a window manager no window becomes active, and key presses go nowhere."""
        ready = self.folder / "managed"
        self._spawn(["openbox", "--sm-disable", "--startup", f"touch {ready}"])
        self._wait(ready.exists, "the window manager")

    def _start_accessibility(self):
        launcher = next(filter(os.path.exists, LAUNCHERS), LAUNCHERS[0])
        # Before the application starts, as on a desktop with a screen reader.
        self._spawn([launcher, "--launch-immediately", "--a11y=1", "--screen-reader=1"])
        self._wait(self._enabled, "the accessibility bus")

    def _enabled(self):
        """Whether the bus tells applications that a screen reader is running."""
        from gi.repository import Gio, GLib

        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        try:
            bus = Gio.DBusConnection.new_for_address_sync(self.environment["DBUS_SESSION_BUS_ADDRESS"], flags, None, None)
            asked = GLib.Variant("(ss)", ("org.a11y.Status", "ScreenReaderEnabled"))
            return bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Get", asked, None,
                                 Gio.DBusCallFlags.NO_AUTO_START, -1, None).unpack()[0]
        except GLib.Error:
            return False  # not ready yet

    def start_application(self):
        """Starts the application and returns its process. Its window exists once it is on the bus."""
        self.environment.update(QT_QPA_PLATFORM="xcb", QT_QUICK_BACKEND="software",
                                QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.application = self._spawn([str(self.program)])
        return self.application
