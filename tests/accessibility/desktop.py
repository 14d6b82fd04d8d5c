# A desktop of a test's own: a display that nobody sees, a session bus, the accessibility bus, and
# programs in windows. All of it goes with the test.
import ctypes
import os
import shutil
import signal
import subprocess
import tempfile
import time

# Long enough for a machine that does ten other things; what hangs is still told apart.
DEADLINE = 60

SET_DEATH_SIGNAL = 1  # of prctl
BE_SUBREAPER = 36
libc = ctypes.CDLL(None, use_errno=True)


class Failed(Exception):
    pass


def wait_for(what, condition):
    """The first value of a condition that counts as true; fails when none comes in time."""
    end = time.monotonic() + DEADLINE
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failed(f"waited {DEADLINE} s for {what}")
        time.sleep(0.02)


def own_processes():
    """Numbers of the processes that this one, or what it started, has left or still runs."""
    with open(f"/proc/self/task/{os.getpid()}/children", encoding="ascii") as children:
        return [int(number) for number in children.read().split()]


class Desktop:
    def __enter__(self):
        for tool in ("Xvfb", "dbus-daemon"):
            if not shutil.which(tool):
                raise Failed(f"{tool} is not installed; see scripts/setup test")
        libc.prctl(BE_SUBREAPER, 1)  # what a bus starts is left to the test, not to the machine
        self.folder = tempfile.mkdtemp(prefix="korvel-desktop-")
        self.home = os.path.join(self.folder, "home")
        os.mkdir(self.home)
        runtime = os.path.join(self.folder, "run")
        os.mkdir(runtime, 0o700)
        temporary = os.path.join(self.folder, "tmp")
        os.mkdir(temporary)
        path = os.environ.get("PATH", os.defpath)
        sanitizers = {k: v for k, v in os.environ.items() if k.endswith("SAN_OPTIONS")}
        os.environ.clear()
        os.environ.update(sanitizers, PATH=path, HOME=self.home, XDG_RUNTIME_DIR=runtime)
        os.environ.update(TMPDIR=temporary, LC_ALL="C.UTF-8")
        os.environ.update(GIO_USE_VFS="local", GSETTINGS_BACKEND="memory")
        self.log = open(os.path.join(self.folder, "log"), "w+b")
        try:
            self.start_display()
            self.start_bus()
        except BaseException:
            self.__exit__(None, None, None)
            raise
        return self

    def start(self, arguments, **options):
        """Starts a program that does not outlive the test."""
        return subprocess.Popen(
            arguments,
            stdin=subprocess.DEVNULL,
            stdout=self.log,
            stderr=self.log,
            preexec_fn=lambda: libc.prctl(SET_DEATH_SIGNAL, signal.SIGKILL),
            **options,
        )

    def said_first(self, program, end):
        """The first line of what a program says."""
        with os.fdopen(end, encoding="ascii") as said:
            line = said.readline().strip()
        if not line:
            raise Failed(f"{program} did not start: {self.logged()}")
        return line

    def start_display(self):
        end, its_end = os.pipe()
        # Without -noreset the display begins anew, and refuses all, when its last window goes.
        display = ["Xvfb", "-displayfd", str(its_end), "-noreset", "-nolisten", "tcp"]
        self.start([*display, "-screen", "0", "1280x900x24"], pass_fds=[its_end])
        os.close(its_end)
        os.environ["DISPLAY"] = ":" + self.said_first("Xvfb", end)

    def start_bus(self):
        end, its_end = os.pipe()
        bus = ["dbus-daemon", "--session", "--nofork", f"--print-address={its_end}"]
        self.start(bus, pass_fds=[its_end])
        os.close(its_end)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.said_first("dbus-daemon", end)

    def logged(self):
        self.log.seek(0)
        return self.log.read().decode(errors="replace")

    def __exit__(self, *_):
        """Ends all that was started, and what that has started."""
        end = time.monotonic() + DEADLINE
        while (left := own_processes()) and time.monotonic() < end:
            for number in left:
                os.kill(number, signal.SIGKILL)  # a child, and not waited for: it is still that one
                os.waitpid(number, 0)
        self.log.close()
        shutil.rmtree(self.folder)
        if left:
            raise Failed(f"processes are left: {left}")
