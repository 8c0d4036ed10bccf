"""A print server of the test's own, with one queue that prints into a file."""

import getpass
import os
import shutil
import subprocess
import sys
import tempfile

from desktop import Failure, wait_for

CUPSD = "/usr/sbin/cupsd"
PPD = "/usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd"
QUEUE = "Raport"

FILES = """ServerRoot {at}/etc
RequestRoot {at}/spool
TempDir {at}/spool/tmp
CacheDir {at}/cache
StateDir {at}/state
AccessLog {at}/log/access
ErrorLog {at}/log/error
PageLog {at}/log/page
FileDevice Yes
User {user}
Group {group}
SystemGroup root
Sandboxing relaxed
"""

SERVER = """Listen {at}/cups.sock
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
Order allow,deny
Allow all
</Location>
<Policy default>
<Limit All>
Order deny,allow
</Limit>
</Policy>
"""

PRINTERS = """<DefaultPrinter {queue}>
DeviceURI file://{at}/out/job.prn
State Idle
Accepting Yes
</DefaultPrinter>
"""


class PrintServer:
    def __init__(self):
        # Beside the other files of the test: its filters run as another user.
        self.folder = folder = tempfile.mkdtemp(prefix="ferna-print-")
        for needed in (CUPSD, PPD):
            if not os.path.exists(needed):
                raise Failure(f"there is no {needed}")
        for name in ("etc/ppd", "spool/tmp", "cache", "state", "log", "out"):
            os.makedirs(self.file(name))
        shutil.copy(PPD, self.file(f"etc/ppd/{QUEUE}.ppd"))
        root = os.geteuid() == 0
        values = {"at": folder, "queue": QUEUE, "user": "lp" if root else getpass.getuser(),
                  "group": "lp"}
        for name, text in (("cups-files.conf", FILES), ("cupsd.conf", SERVER),
                           ("etc/printers.conf", PRINTERS)):
            with open(self.file(name), "w", encoding="utf-8") as file:
                file.write(text.format(**values))
        os.chmod(folder, 0o755)
        if root:
            for name in ("spool", "spool/tmp", "cache", "state", "log", "out"):
                shutil.chown(self.file(name), "lp", "lp")
        self.environment = {"CUPS_SERVER": self.file("cups.sock")}
        self.process = subprocess.Popen(
            [CUPSD, "-f", "-c", self.file("cupsd.conf"), "-s", self.file("cups-files.conf")],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            wait_for("the print queue", self.accepts)
        except BaseException:
            self.close()
            raise

    def __enter__(self):
        return self

    def __exit__(self, failure, *_):
        self.close()
        if failure:
            print(f"the printer's files are in {self.folder}", file=sys.stderr)
        elif not os.environ.get("FERNA_E2E_KEEP"):
            shutil.rmtree(self.folder)

    def file(self, name):
        return os.path.join(self.folder, name)

    def ask(self, *arguments):
        return subprocess.run(["lpstat", *arguments], env=os.environ | self.environment,
                              text=True, capture_output=True, timeout=30)

    def accepts(self):
        if self.process.poll() is not None:
            raise Failure(f"cupsd ended; its log is in {self.file('log')}")
        return self.ask("-a").stdout.startswith(QUEUE)

    def jobs_done(self):
        return len(self.ask("-W", "completed", "-o").stdout.splitlines())

    def printed(self, number):
        """The file of the job with that number, once it is printed."""
        wait_for(f"print job {number}", lambda: self.jobs_done() >= number, 60)
        return self.file("out/job.prn")

    def close(self):
        self.process.terminate()
        try:
            self.process.wait(5)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
