"""A desktop of its own for the road: a screen, a window manager, a bus of accessibility, and a home folder."""
import os
import shutil
import subprocess
import tempfile
from pathlib import Path

from waiting import NotSeen, until

WIDTH, HEIGHT = 1280, 800
# Where distributions put what starts the bus that screen readers use.
BUS_LAUNCHERS = ("/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi2-core/at-spi-bus-launcher")
HERE = Path(__file__).resolve().parent
MIMICS = HERE / "mimics"


class Desktop:
    """Starts what a desktop consists of, and ends all of it, programs included, when it is left."""

    def __init__(self, folder, home=None):
        self.folder = Path(folder)
        self.home = home or self.folder / "home"
        self.started = []
        self.environment = self._environment()

    def _environment(self):
        """Nothing of the person who runs the test shows: language, sizes and remembered files are the first ones."""
        kept = {key: value for key, value in os.environ.items() if key in ("PATH", "UBSAN_OPTIONS", "TZ")}
        runtime = self.folder / "runtime"
        for folder in (self.home, runtime):
            folder.mkdir(parents=True)
        runtime.chmod(0o700)
        # What opens a folder on this desktop writes down which it was asked for.
        kept["PATH"] = f"{MIMICS}:{kept['PATH']}"
        # Qt leaks a few values that it told screen readers; the program's own are looked for by its other tests.
        return kept | {
            "ASAN_OPTIONS": "detect_leaks=0", "QT_LOGGING_RULES": "qt.accessibility.*=false",
            "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / ".config"), "XDG_DATA_HOME": str(self.home / ".local/share"),
            "XDG_CACHE_HOME": str(self.home / ".cache"), "XDG_RUNTIME_DIR": str(runtime), "LANG": "C.UTF-8",
            "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "QT_ACCESSIBILITY": "1",
            "QT_SCALE_FACTOR": "1", "QT_STYLE_OVERRIDE": "fusion", "ROAD_OPENED": str(self.opened_folders)}

    @property
    def opened_folders(self):
        """A line for each folder that a program asked the desktop to open."""
        return self.folder / "opened"

    def __enter__(self):
        try:
            self._start_screen()
            self._start_buses()
            self.start("openbox", "--sm-disable", "--config-file", HERE / "rc.xml", log="openbox")
            until("a window manager", self._is_managed)
        except NotSeen as missed:
            self.__exit__()
            said = "".join(f"\n{log.name}:\n{log.read_text('utf-8', 'replace')}" for log in sorted(self.folder.glob("*.log")))
            raise NotSeen(f"the desktop didn't start: {missed}{said}") from None
        except BaseException:
            self.__exit__()
            raise
        return self

    def _is_managed(self):
        answer = subprocess.run(["xdotool", "get_num_desktops"], env=self.environment, capture_output=True, check=False)
        return answer.returncode == 0

    def __exit__(self, *_):
        for process in reversed(self.started):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(10)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        if not self.home.is_relative_to(self.folder):
            shutil.rmtree(self.home)

    def start(self, *command, log, **more):
        """The process of a program on this desktop; what it says goes to a file called after log."""
        with open(self.folder / f"{log}.log", "ab") as output:
            process = subprocess.Popen([str(part) for part in command], env=self.environment, stdin=subprocess.DEVNULL,
                                       stdout=more.pop("stdout", output), stderr=output, cwd=self.home, **more)
        self.started.append(process)
        return process

    def ask(self, *command):
        return subprocess.run([str(part) for part in command], env=self.environment, check=True, capture_output=True,
                              timeout=30).stdout

    def _start_screen(self):
        read, write = os.pipe()
        self.start("Xvfb", "-displayfd", write, "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp", "-noreset", log="screen",
                   pass_fds=[write])
        os.close(write)
        with os.fdopen(read, "rb") as number:
            self.environment["DISPLAY"] = ":" + number.readline().decode().strip()

    def _start_buses(self):
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address", log="bus", stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()
        launcher = next((path for path in BUS_LAUNCHERS if Path(path).exists()), None)
        if not launcher:
            raise FileNotFoundError("the bus of accessibility: install at-spi2-core")
        self.start(launcher, "--launch-immediately", log="accessibility")

    def picture(self, path):
        """The whole screen, in few colours."""
        with tempfile.NamedTemporaryFile(suffix=".png") as raw:
            self.ask("maim", "--hidecursor", raw.name)
            self.ask("pngquant", "--force", "--strip", "--speed", "1", "--output", path, "64", raw.name)
