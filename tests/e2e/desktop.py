"""A screen of its own, with a window manager, keys and windows found by their titles."""

import os
import subprocess
import time


FONTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "fonts.conf")


class Failure(Exception):
    pass


PATIENCE = 90  # seconds: as long as a busy machine may take


def wait_for(what, condition, seconds=PATIENCE):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    raise Failure(f"waited {seconds} s in vain for {what}")


class Desktop:
    def __init__(self, home, size="1600x1200x24", environment=None, manager="openbox"):
        self.started = []
        self.environment = environment or {}
        self.manager = manager
        os.makedirs(home, exist_ok=True)
        try:
            self.open_screen(home, size)
        except BaseException:
            self.close()
            raise

    def open_screen(self, home, size):
        self.env = {"PATH": os.environ["PATH"], "HOME": home, "LC_ALL": "C.UTF-8",
                    "XDG_RUNTIME_DIR": home, "QT_QPA_PLATFORM": "xcb", "FONTCONFIG_FILE": FONTS}
        self.env |= self.environment
        read, write = os.pipe()
        # A screen that starts anew when its last client goes would take the window manager along that
        # comes while the first question for it ends.
        self.started.append(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp",
             "-noreset", "-r"],
            pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL))
        os.close(write)
        with os.fdopen(read) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Failure("Xvfb did not start")
        self.env["DISPLAY"] = ":" + number
        manager = self.start([self.manager])
        wait_for("the window manager", lambda: self.is_managed() or manager.poll() is not None)
        if manager.poll() is not None:
            raise Failure(f"{self.manager} ended with {manager.poll()}")
        # With a Polish keyboard xdotool presses the keys of the Polish letters; without, it would
        # change the keyboard for each of them, and a busy program would read the key of another.
        subprocess.run(["setxkbmap", "pl"], env=self.env, check=True, timeout=PATIENCE)

    def is_managed(self):
        """True once the window manager has taken over the windows there are, and lists them."""
        answer = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST"], env=self.env,
                                text=True, capture_output=True, timeout=PATIENCE).stdout
        return "window id" in answer

    def start(self, command, folder=None):
        process = subprocess.Popen(command, env=self.env, cwd=folder, stdout=subprocess.DEVNULL,
                                   stderr=subprocess.DEVNULL)
        self.started.append(process)
        return process

    def close(self):
        for process in reversed(self.started):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()

    def xdotool(self, *arguments):
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.env, text=True,
                              capture_output=True, timeout=PATIENCE)
        return done.stdout.strip()

    def window(self, title, seconds=PATIENCE):
        """The visible window whose whole title matches, once it has the keyboard."""
        def active():
            for window in self.shown(title):
                if self.xdotool("getactivewindow") == window:
                    return window
                self.xdotool("windowactivate", window)
            return None

        return wait_for(f'the window "{title}"', active, seconds)

    def answer(self, title, text, seconds=PATIENCE):
        """Types the answer to a question that stands in a window of its own."""
        window = self.window(title, seconds)
        self.type(text)
        self.keys("Return")
        wait_for(f'the question "{title}" to go', lambda: window not in self.shown(title))

    def shown(self, title):
        return self.xdotool("search", "--onlyvisible", "--name", f"^{title}$").split()

    def is_shown(self, title):
        return bool(self.shown(title))

    def stacking(self):
        """The numbers of all windows, the lowest first."""
        answer = subprocess.run(["xprop", "-root", "_NET_CLIENT_LIST_STACKING"], env=self.env,
                                text=True, capture_output=True, timeout=PATIENCE).stdout
        return [int(number, 16) for number in answer.rpartition("#")[2].split(",")]

    def gone(self, title, seconds=PATIENCE):
        wait_for(f'the window "{title}" to go', lambda: not self.is_shown(title), seconds)

    def keys(self, *names):
        for name in names:
            self.xdotool("key", "--delay", 20, name)
            time.sleep(0.03)

    def type(self, text):
        """Types over what stands in the field with the focus."""
        self.keys("ctrl+a")
        self.write(text)

    def write(self, text):
        self.xdotool("type", "--delay", 15, "--", text)

    def click(self, window, across, from_bottom):
        """Clicks into a window: at a share of its width, some pixels above its lower edge."""
        size = dict(line.split("=") for line in
                    self.xdotool("getwindowgeometry", "--shell", window).split())
        self.xdotool("mousemove", "--window", window, int(int(size["WIDTH"]) * across),
                     int(size["HEIGHT"]) - from_bottom, "click", 1)

    def dark_share(self, window):
        """The share of dark pixels in what a window shows."""
        picture = subprocess.run(["import", "-window", window, "png:-"], env=self.env,
                                 capture_output=True, timeout=PATIENCE).stdout
        shown = subprocess.run(["convert", "png:-", "-colorspace", "gray", "-threshold", "50%",
                                "-format", "%[fx:1-mean]", "info:"], input=picture,
                               capture_output=True, timeout=PATIENCE).stdout
        return float(shown or 0)

    def screenshot(self, path):
        try:
            subprocess.run(["import", "-window", "root", path], env=self.env, check=False,
                           stderr=subprocess.DEVNULL, timeout=PATIENCE)
        except (OSError, subprocess.TimeoutExpired):
            pass  # only for the person who looks into a failure
