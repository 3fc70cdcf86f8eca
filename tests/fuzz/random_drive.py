#!/usr/bin/python3
"""Drives the real program at random on a screen of its own: random_drive.py BUILD-FOLDER [SEED [ACTIONS]]

What action N does depends on the seed, on N and on the active window only. After each one the program must
answer the window manager's ping, which it does when it is done with all that came before.
"""
import collections, os, pathlib, random, re, shutil, signal, subprocess, sys, tempfile, time
import Xlib.display, Xlib.ext.xtest
from Xlib import X, XK, protocol

HERE = pathlib.Path(__file__).resolve().parent
CAPTION, ADDING, FILE_DIALOG = "Tepsan Yazılım - Belgenar", "Listeye Makale Ekle...", "Dosya Aç..."
ANSWER = 60  # seconds until a program that doesn't answer counts as hung
REPORT = re.compile(r"ERROR: \w+Sanitizer|runtime error:")
NAMES = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L", " ": "space", "/": "slash", ".": "period",
         "-": "minus", "'": "apostrophe", "_": "underscore"}
TURKISH = {"ş": 0x1BA, "ğ": 0x2BB, "ı": 0x2B9}
KEYS = """Tab shift+Tab Return Return Return Escape space Up Down Left Right Home End Prior Next Delete BackSpace
 shift+Up shift+Down shift+Right shift+End ctrl+a ctrl+a ctrl+c ctrl+x ctrl+v ctrl+v ctrl+z ctrl+shift+z ctrl+Home
 ctrl+End ctrl+shift+End ctrl+Right ctrl+Delete ctrl+BackSpace ctrl+plus ctrl+minus shift+Insert shift+Return Menu
 F10 F4 alt+Down a i ı ş ' space 7""".split() + ["alt+" + letter for letter in "abcdeghiklmnoprstuwyz"]
SAFE_KEYS = ["Tab", "Escape", "Down", "Up", "Return"]  # others could delete files in the file dialog
LINE = "Deniz kıyısında bir satır.\n"
TEXTS = ["", " ", "x", LINE * 60, LINE * 20000, "uzun " * 12000, "b" * 30000, "\n" * 3000, "\t  \t", "a\0b",
         "'\"*?[#", "ince çizgi ığdır İSTANBUL " * 9, "\u2028\u2029\u00a0\u200f\u202e", "😀👩‍👩‍👧" * 500, "e\u0301" * 99,
         "1\r\n2\r3\n" * 50]
RTF = rb"{\rtf1\ansicpg1254 " + rb"{\b kal\u305?n}{\i\fs40\cf1 e\'f0ik}\par" * 5000 + b"}"
DATA = [("UTF8_STRING", text.encode()) for text in TEXTS] + [
    ("image/png", b"\x89PNG\r\n\x1a\n"), ("text/rtf", RTF), ("text/plain", bytes(range(256))),
    ("text/uri-list", b"file:///etc/passwd\r\n"), ("text/html", b"<b>x</b>")]
FIELDS = [("ali ığdır", "kış'ın", "van ili", "2003 bahar"), ("", "x", "y", ""), ("a b", "c" * 300, "d" * 60, "1.1.2001")]


class Dead(Exception):
    """The program has ended."""


class Gone(Exception):
    """There is no window."""


class Driver:
    def __init__(self, build, seed):
        self.build, self.seed, self.pick = build, seed, random.Random(seed)
        self.number, self.pings, self.findings, self.said = 0, 1000, 0, collections.Counter()
        self.program = self.owner = None
        self.work = pathlib.Path(tempfile.mkdtemp(prefix="rastgele."))
        self.log = open(self.work / "eylemler.log", "w", buffering=1)
        self.start_screen()
        self.make_files()

    # -- what stands around the program

    def start_screen(self):
        read, write = os.pipe()
        size = self.pick.choice(["1280x900x24", "1024x768x24", "1920x1080x24"])
        self.servers = [subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", size, "-nolisten", "tcp"],
                                         pass_fds=[write], stderr=subprocess.DEVNULL)]
        os.environ["DISPLAY"] = ":" + os.read(read, 9).decode().strip()
        self.servers.append(subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL))
        root = Xlib.display.Display().screen().root
        while not self.property(root, "_NET_SUPPORTING_WM_CHECK"):
            time.sleep(0.1)
        subprocess.run(["setxkbmap", "tr"], check=True)
        self.display = Xlib.display.Display()  # with this keyboard
        self.display.set_error_handler(lambda *error: None)  # windows go at any time
        self.root = self.display.screen().root
        self.root.change_attributes(event_mask=X.StructureNotifyMask)  # where answers to the ping come

    def make_files(self):
        self.folder, self.files, stand_in = self.work / "Belgenar", self.work / "f", self.work / "bin" / "soffice"
        subprocess.run(["cmake", "--install", self.build, "--prefix", self.folder], check=True, stdout=subprocess.DEVNULL)
        self.tool("oluştur")
        self.tool("aktar", HERE.parent.parent / "resources/kitaplik/baslangic.jsonl")
        shutil.copytree(self.folder, self.work / "taze")
        shutil.copytree(HERE / "corpus", self.files)
        for i, text in enumerate(TEXTS):
            (self.files / f"{i}.txt").write_bytes(text.encode(["utf-8", "utf-16", "utf-8-sig"][i % 3]))
        (self.files / "cp.txt").write_bytes("ğüşıöçİ\r\n".encode("cp1254") * 400)
        (self.files / "ikili.txt").write_bytes(random.Random(1).randbytes(50000))
        (self.files / "uzun.rtf").write_bytes(RTF)
        os.mkfifo(self.files / "boru.txt")
        (self.files / "klasor").mkdir()
        self.names = sorted(entry.name for entry in self.files.iterdir()) + ["yok.txt"] * 3
        stand_in.parent.mkdir()
        stand_in.write_text('#!/bin/sh\ncat "$3" >/dev/null\n[ $(($$ % 3)) = 0 ] && exit 1\nsleep 3\n')
        stand_in.chmod(0o755)
        (self.work / "sizinti").write_text("leak:libdbus\n")  # what the toolkit's library keeps for ever
        own = {name: str(self.work / name) for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "TMPDIR")}
        for folder in own.values():
            os.mkdir(folder, 0o700)
        self.environment = os.environ | own | {
            "LC_ALL": "C.UTF-8", "CUPS_SERVER": "/yok/sock", "PATH": f"{stand_in.parent}:{os.environ['PATH']}",
            "UBSAN_OPTIONS": "print_stacktrace=1", "ASAN_OPTIONS": "handle_abort=1",
            "LSAN_OPTIONS": f"suppressions={self.work}/sizinti:print_suppressions=0"}
        self.user = "nobody" if os.geteuid() == 0 else None  # no mishap in the file dialog reaches other files
        if self.user:
            subprocess.run(["chown", "-R", self.user, self.work], check=True)

    def tool(self, command, *arguments):
        return subprocess.run([self.folder / "belgenar-kitaplik", command, self.folder, *arguments],
                              stdout=subprocess.DEVNULL, user=self.user if hasattr(self, "user") else None).returncode

    def fresh_library(self):
        for name in ("Makale.mde", "Makale.tps"):
            shutil.copyfile(self.work / "taze" / name, self.folder / name)

    def launch(self, output):
        return subprocess.Popen([self.folder / "belgenar"], env=self.environment, stderr=output, user=self.user,
                                cwd=self.environment["HOME"])

    def start(self):
        if self.pick.random() < 0.4:
            self.fresh_library()
        self.program, self.seen = self.launch(open(self.work / "cikti", "wb")), set()
        end = time.time() + ANSWER
        while not any(self.name(window).startswith(CAPTION) for window in self.windows()):
            if self.program.poll() is not None or time.time() > end:
                sys.exit(f"action {self.number}: does not start, see {self.work}/cikti")
            time.sleep(0.05)

    # -- findings

    def found(self, what):
        self.findings += 1
        print(f"FOUND action {self.number}: {what}", flush=True)
        place = self.work / f"bulgu-{self.findings}"
        shutil.copyfile(self.work / "cikti", f"{place}.txt")
        subprocess.run(["import", "-window", "root", f"{place}.png"], check=False)

    def ended(self, wanted):
        """Looks at how the program ended, and at what it left."""
        try:
            status = self.program.wait(ANSWER)
        except subprocess.TimeoutExpired:
            self.found("does not end")
            self.program.kill()
            status = self.program.wait()
        lines = (self.work / "cikti").read_text(errors="replace").splitlines()
        reports = [line for line in lines if REPORT.search(line)]
        if reports or status != wanted:
            self.found(f"ended with status {status} {reports[:1]}")
        else:
            self.said.update(re.sub(r"\d+", "N", line) for line in lines)
        if self.tool("denetle") != 0:
            self.found("the library is not whole")
            self.fresh_library()

    def answer(self):
        """Waits until the program has handled all that was sent to it."""
        self.pings += 1
        end, asked = time.time() + ANSWER, None
        while time.time() < end:
            windows = self.windows()
            if self.program.poll() is not None:
                raise Dead
            if windows and asked not in windows:  # the first time, or the one that was asked has gone
                asked = windows[0]
                asked.send_event(protocol.event.ClientMessage(
                    window=asked, client_type=self.atom("WM_PROTOCOLS"),
                    data=(32, [self.atom("_NET_WM_PING"), self.pings, asked.id, 0, 0])))
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type & 0x7F == X.ClientMessage and event.data[1][1] == self.pings:
                    return
            time.sleep(0.002)
        self.found("hung")
        self.program.kill()
        self.ended(-signal.SIGKILL)
        self.start()

    def look_for_cut_off(self):
        """Looks at each window once, when it is new. The file dialog's own box grows with a file's name."""
        for window in self.windows() + self.popups():
            if window.id not in self.seen and self.name(window) != FILE_DIALOG and not self.fits(window):
                time.sleep(0.5)  # it may be on its way
                if not self.fits(window):
                    self.found(f"cut off the screen: {self.name(window)!r} {self.place(window)}")
            self.seen.add(window.id)

    def fits(self, window):
        screen, (x, y, width, height) = self.display.screen(), self.place(window)
        left, right, top, bottom = self.property(window, "_NET_FRAME_EXTENTS") or (0, 0, 0, 0)
        return width == 1 or (x >= left and y >= top and x + width + right <= screen.width_in_pixels
                              and y + height + bottom <= screen.height_in_pixels)

    # -- the screen

    def atom(self, name):
        return self.display.intern_atom(name)

    @staticmethod
    def property(window, name):
        """None where there is none, and where the window has gone."""
        try:
            value = window.get_full_property(window.display.get_atom(name), X.AnyPropertyType)
        except Xlib.error.BadWindow:
            return None
        return value and value.value

    def mine(self, window):
        return (self.property(window, "_NET_WM_PID") or [0])[0] == self.program.pid

    def windows(self):
        ids = self.property(self.root, "_NET_CLIENT_LIST")
        return [w for w in (self.display.create_resource_object("window", i) for i in ids or []) if self.mine(w)]

    def popups(self):
        def shown(window):
            attributes = window.get_attributes()
            return attributes.override_redirect and attributes.map_state == X.IsViewable
        return [window for window in self.root.query_tree().children if self.mine(window) and shown(window)]

    def name(self, window):
        return bytes(self.property(window, "_NET_WM_NAME") or b"").decode()

    def place(self, window):
        geometry, corner = window.get_geometry(), self.root.translate_coords(window, 0, 0)
        return corner.x, corner.y, geometry.width, geometry.height

    def target(self):
        """The popup that stands, else the active window, else any."""
        active = (self.property(self.root, "_NET_ACTIVE_WINDOW") or [0])[0]
        windows = sorted(self.windows(), key=lambda window: window.id == active)
        windows += self.popups()
        if not windows:
            raise Gone
        return windows[-1]

    # -- what a user does

    def fake(self, kind, detail=0, x=0, y=0):
        Xlib.ext.xtest.fake_input(self.display, kind, detail, x=int(x), y=int(y))

    def keys(self, *combinations):
        for combination in combinations:
            codes = []
            for name in combination.split("+"):
                symbol = TURKISH.get(name) or XK.string_to_keysym(NAMES.get(name, name))
                code, level = min(self.display.keysym_to_keycodes(symbol), key=lambda pair: pair[1])
                codes += [self.display.keysym_to_keycode(XK.XK_Shift_L)] * (level == 1) + [code]
            for kind, order in ((X.KeyPress, codes), (X.KeyRelease, codes[::-1])):
                for code in order:
                    self.fake(kind, code)
            if len(combination) > 1:
                self.answer()

    def point(self):
        x, y, width, height = self.place(self.target())
        rows = self.pick.choice([(0, height), (0, 25), (height - 40, height)])  # all, the menu bar, the buttons
        self.fake(X.MotionNotify, x=x + self.pick.uniform(0, width - 1),
                  y=y + min(max(self.pick.uniform(*rows), 0), height - 1))

    def press(self, button, times=1):
        for _ in range(times):
            self.fake(X.ButtonPress, button)
            self.fake(X.ButtonRelease, button)

    def key(self):
        self.keys(self.pick.choice(KEYS))

    def same_key(self):
        self.keys(*[self.pick.choice(["Tab", "Down", "Up", "space", "Return", "Right", "Left"])] * self.pick.randint(2, 5))

    def click(self):
        self.point()
        self.press(self.pick.choice([1, 1, 1, 2, 3]), self.pick.choice([1, 1, 1, 2, 3]))

    def wheel(self):
        self.point()
        held = self.display.keysym_to_keycode(self.pick.choice([XK.XK_Control_L, XK.XK_Shift_L, XK.XK_F12]))
        self.fake(X.KeyPress, held)
        self.press(self.pick.choice([4, 5, 5, 6, 7]), self.pick.randint(1, 40))
        self.fake(X.KeyRelease, held)

    def drag(self):
        if self.pick.random() < 0.3:
            self.keys("ctrl+a")  # what is selected can be dragged to another place
        self.point()
        self.fake(X.ButtonPress, 1)
        for _ in range(self.pick.randint(1, 5)):
            self.point()
            self.answer()
        self.fake(X.ButtonRelease, 1)

    def clipboard(self):
        if self.owner:
            self.owner.kill()
            self.owner.wait()
        kind, data = self.pick.choice(DATA)
        self.owner = subprocess.Popen(
            ["xclip", "-quiet", "-selection", self.pick.choice(["clipboard", "primary"]), "-t", kind],
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.owner.stdin.write(data)
        self.owner.stdin.close()

    def resize(self):
        window, screen = self.target(), self.display.screen()
        if not window.get_attributes().override_redirect:
            window.configure(width=self.pick.randint(1, screen.width_in_pixels),
                             height=self.pick.randint(1, screen.height_in_pixels))

    def open(self):
        self.keys(*self.pick.choice([("alt+m", "e"), ("alt+m", "d"), ("alt+m", "s"), ("alt+m", "r"), ("alt+y",)]))

    def fill(self):
        for text in self.pick.choice(FIELDS):
            self.keys(*text, "Return")

    def load(self):
        self.keys("alt+o")
        time.sleep(0.3)
        if self.name(self.target()) == FILE_DIALOG:
            self.keys(*f"{self.files}/{self.pick.choice(self.names)}", "Return")

    def find(self):
        self.keys("alt+c", *self.pick.choice(["ve", "bir", "x", "deniz", "'", "dep", ""]))
        self.keys(self.pick.choice(["Return", "alt+b", "alt+t", "alt+z"]))

    def exit(self):
        self.keys("Escape", "Return")

    def signal(self):
        sent = self.pick.choice([signal.SIGTERM, signal.SIGKILL, signal.SIGINT, signal.SIGHUP])
        if any(self.name(window) == ADDING for window in self.windows()):  # which may refuse to close
            sent = signal.SIGKILL
        self.program.send_signal(sent)
        self.ended(-sent if sent == signal.SIGKILL else 0)
        self.start()

    def second_start(self):
        if self.launch(subprocess.DEVNULL).wait(ANSWER) != 0:
            self.found("a second start does not end well")

    WEIGHTS = {key: 40, same_key: 8, click: 30, wheel: 14, drag: 10, clipboard: 6, resize: 4, open: 8, fill: 2, load: 5,
               find: 4, exit: 0.6, signal: 0.3, second_start: 0.2}

    def act(self):
        self.pick = random.Random(f"{self.seed} {self.number}")
        action, name = self.pick.choices(*zip(*self.WEIGHTS.items()))[0], self.name(self.target())
        self.log.write(f"{self.number} {name}: {action.__name__}\n")
        if name == FILE_DIALOG:
            self.keys(self.pick.choice(SAFE_KEYS))
        else:
            action(self)
        self.answer()
        self.look_for_cut_off()

    def drive(self, actions):
        self.start()
        for self.number in range(1, actions + 1):
            try:
                self.act()
            except (Dead, Gone, Xlib.error.BadWindow, Xlib.error.BadDrawable):
                time.sleep(0.05)  # it went while it was looked at, or on its own
            if self.program.poll() is not None:
                self.ended(0)
                self.start()
        self.program.kill()
        self.program.wait()

    def close(self):
        for process in (self.program, self.owner, *self.servers[::-1]):
            if process:
                process.kill()
                process.wait()
        for line, count in self.said.most_common():
            print(f"said {count} times: {line}")
        print(f"seed {self.seed}, {self.number} actions, {self.findings} findings, {self.work}")


def main():
    seed, actions = (int(number) for number in sys.argv[2:] + [str(int(time.time())), "20000"][len(sys.argv) - 2:])
    driver = Driver(os.path.abspath(sys.argv[1]), seed)
    print(f"seed {seed}, {actions} actions, {driver.work}", flush=True)
    try:
        driver.drive(actions)
    finally:
        driver.close()
    sys.exit(driver.findings > 0)


main()
