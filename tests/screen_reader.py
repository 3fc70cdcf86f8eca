#!/usr/bin/env python3
"""What a screen reader is told, by the accessibility bus itself: tests/screen_reader.py PROGRAM LIBRARY
Needs a session bus and a display with a window manager. Prints a line "ok ..." or "FAIL ..." for each check.
"""
import json
import os
import subprocess
import sys
import time

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

MAIN = "Tepsan Yazılım - Belgenar 1.00"
BOX = "Belgenar"
GUIDE = "Kullanım Kılavuzu"
PATIENCE = 120  # seconds; far more than a busy machine needs
PRESS_AGAIN = 20  # seconds after which a key counts as lost

ACCESSIBLE = "org.a11y.atspi.Accessible"
EVENT = "org.a11y.atspi.Event.Object"
ROOT = "/org/a11y/atspi/accessible/root"
NOTHING = "/org/a11y/atspi/null"
FOCUSABLE, SHOWING = 11, 25  # bits of a state, as the bus numbers them
LABELLED_BY = 2
CONTROLS = {"button", "push button", "toggle button", "check box", "radio button", "combo box", "text", "entry",
            "spin button", "list", "list box", "tree", "table", "page tab list", "link", "password text"}
HOLDS_ENTRIES = {"list", "list box", "tree", "tree table", "table"}
# Who is heard must have asked for it.
HEARD = ["object:state-changed:focused", "object:state-changed:showing"]


class Failed(Exception):
    pass


class Bus:
    """The accessibility bus: asks accessibles, which are (owner, path), and keeps what is heard."""

    def __init__(self):
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address, = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                                     GLib.VariantType("(s)"), 0, PATIENCE * 1000, None)
        flags = Gio.DBusConnectionFlags
        self.connection = Gio.DBusConnection.new_for_address_sync(
            address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION)
        self.events = []
        self.connection.signal_subscribe(None, EVENT, None, None, None, 0, self.heard)
        for event in HEARD:
            self.call("org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                      "RegisterEvent", GLib.Variant("(sas)", (event, [])))

    def heard(self, _connection, owner, path, _interface, signal, parameters):
        kind, first = parameters.unpack()[:2]
        self.events.append((signal, kind, first, (owner, path)))

    def call(self, owner, path, interface, method, parameters=None):
        return self.connection.call_sync(owner, path, interface, method, parameters, None, 0, PATIENCE * 1000,
                                         None).unpack()

    def ask(self, item, method):
        return self.call(*item, ACCESSIBLE, method)[0]

    def property(self, item, name):
        return self.call(*item, "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (ACCESSIBLE, name)))[0]

    def name(self, item):
        return self.property(item, "Name")

    def has(self, item, state):
        low, high = self.ask(item, "GetState")
        return bool((high << 32 | low) >> state & 1)

    def application(self, pid):
        for item in self.ask(("org.a11y.atspi.Registry", ROOT), "GetChildren"):
            owner, = self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                               "GetConnectionUnixProcessID", GLib.Variant("(s)", (item[0],)))
            if owner == pid:
                return item
        return None

    def tree(self, item):
        """The item and what is below it, without the entries of lists."""
        yield item
        if self.ask(item, "GetRoleName") not in HOLDS_ENTRIES:
            for child in self.ask(item, "GetChildren"):
                yield from self.tree(child)

    def labels(self, item):
        return [self.name(label) for kind, labels in self.ask(item, "GetRelationSet") if kind == LABELLED_BY
                for label in labels]

    def names(self, item):
        """What the item is called. A combo box tells its choice as its name: there only labels count."""
        own = [] if self.ask(item, "GetRoleName") == "combo box" else [self.name(item)]
        return [name for name in own + self.labels(item) if name.strip()]

    def within(self, item, window):
        while item != window and item[1] not in (ROOT, NOTHING):
            item = self.property(item, "Parent")
        return item == window

    def describe(self, item):
        return "%s %r" % (self.ask(item, "GetRoleName"), self.names(item) or self.name(item))


def gone_is_none(function, *arguments):
    """Objects may be gone before they are asked."""
    try:
        return function(*arguments)
    except GLib.Error:
        return None


# Without the Alt key: on a busy machine what followed it landed in the menus now and then.
def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def types(text):
    subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "50", text], check=True)


def active_window():
    return subprocess.run(["xdotool", "getactivewindow", "getwindowname"], stdout=subprocess.PIPE,
                          stderr=subprocess.DEVNULL, check=False).stdout.decode().rstrip("\n")


def splash_gone():
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Belgenar$"],
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode != 0


class Test:
    def __init__(self, program, library):
        self.failures = 0
        with open(library, encoding="utf-8") as lines:
            self.articles = [json.loads(line) for line in lines]
        self.bus = Bus()
        self.program = subprocess.Popen([program], env=dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1"))
        self.application = None

    def until(self, what, function, seconds=PATIENCE):
        end = time.monotonic() + seconds
        context = GLib.MainContext.default()
        while True:
            while context.iteration(False):
                pass
            value = gone_is_none(function)
            if value:
                return value
            if time.monotonic() > end or self.program.poll() is not None:
                raise Failed("beklendi: " + what)
            time.sleep(0.02)

    def check(self, title, function, *arguments, **named):
        """A function may give what is to be added to the title."""
        try:
            added = function(*arguments, **named)
            print("ok " + title + (": " + added if added else ""), flush=True)
            return True
        except (Failed, GLib.Error, subprocess.SubprocessError) as error:
            self.failures += 1
            print("FAIL " + title + "\n  " + str(error).replace("\n", "\n  "), flush=True)
            for event in self.bus.events[-15:]:
                print("  duyulan: %s %s %s, %s" % (*event[:3], gone_is_none(self.bus.describe, event[3])))
            return False

    def press_until(self, title, *names):
        """Presses the keys until that window is there; again only where they must have been lost."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            keys(*names)
            try:
                self.until(title, lambda: active_window() == title, PRESS_AGAIN)
                return
            except Failed:
                print("  yeniden basılır: " + " ".join(names), flush=True)
        raise Failed("beklendi: pencere " + title)

    def window(self, title):
        """The shown window of this title as the reader sees it."""
        def look():
            for item in self.bus.ask(self.application, "GetChildren"):
                if self.bus.name(item) == title and self.bus.has(item, SHOWING):
                    return item
            return None
        return self.until("erişilebilir pencere " + title, look)

    def controls(self, window):
        return [item for item in self.bus.tree(window) if item != window and (
            self.bus.has(item, FOCUSABLE)
            or self.bus.ask(item, "GetRoleName") in CONTROLS and self.bus.has(item, SHOWING))]

    def all_named(self, title, at_least):
        window = self.window(title)
        seen = []

        def complete():
            seen[:] = [(self.bus.describe(item), self.bus.names(item)) for item in self.controls(window)]
            return len(seen) >= at_least
        try:
            self.until("%d denetim" % at_least, complete)
            if not all(names for _, names in seen):
                raise Failed("adsız denetim")
        except Failed as error:
            raise Failed("%s; görülen: %s" % (error, ", ".join(said for said, _ in seen))) from None
        return "%d denetim" % len(seen)

    def events(self, kind):
        """Whose state came to hold, of those there still are."""
        return [event[3] for event in self.bus.events if event[:3] == ("StateChanged", kind, 1)
                and gone_is_none(self.bus.describe, event[3])]

    def hears_focus(self, name, title=MAIN):
        """Something of that name, in that window, is told to have the focus now."""
        window = self.window(title)
        self.until("odak: " + name, lambda: any(
            gone_is_none(lambda: name in self.bus.names(item) and self.bus.within(item, window))
            for item in self.events("focused")))

    def hears_words(self, words):
        """A notice with these words is shown. Not a description: its event does not carry the words."""
        self.until("söz: " + words, lambda: any(
            gone_is_none(lambda: self.bus.ask(item, "GetRoleName") == "notification"
                         and self.bus.name(item) == words) for item in self.events("showing")))

    def hears(self, expectation, wanted, *names, typed=None):
        self.bus.events.clear()
        if typed:
            types(typed)
        keys(*names)
        expectation(wanted)

    def start(self):
        self.until("pencere " + MAIN, lambda: active_window() == MAIN and splash_gone())
        self.application = self.until("erişilebilir program", lambda: self.bus.application(self.program.pid))
        self.hears_focus("Yazarlar")

    def look_at(self, what, title, at_least, focused, opening, closing=("Escape",), before_closing=None):
        """Opens a window, hears what has the focus in it, sees its controls, closes it."""
        self.bus.events.clear()
        if not self.check(what + " açılır", self.press_until, title, *opening):
            return
        self.check(what + ": odaktaki söylenir", self.hears_focus, focused, title)
        self.check(what + ": her denetimin adı var", self.all_named, title, at_least)
        if before_closing:
            before_closing()
        self.press_until(MAIN, *closing)

    def fill_guide(self):
        """Its boxes get a button each that empties them."""
        empty = len(self.until("denetimler", lambda: self.controls(self.window(GUIDE))))
        types("kitap")
        self.check("dolu dizin kutusu: her denetimin adı var", self.all_named, GUIDE, empty + 1)
        keys("ctrl+f")
        self.check("kılavuzda bulunamayan söylenir", self.hears, self.hears_words, "Bulunamadı", "Return", typed="xqxq")
        self.check("dolu bulma kutusu: her denetimin adı var", self.all_named, GUIDE, empty + 2)

    def end(self):
        self.program.terminate()
        if self.program.wait(PATIENCE) != 0:
            raise Failed("durum %d" % self.program.returncode)

    def run(self):
        authors = [article["YazarAdi"] for article in self.articles]
        texts = [article["MakaleMetni"].lower() for article in self.articles]
        first = "CEVDET ÖZPINAR"
        titles = sorted(article["MakaleBasligi"] for article in self.articles if article["YazarAdi"] == first)
        text = next(text for text, author in zip(texts, authors) if author == first)
        word = "deprem"
        if not self.check("program erişim yoluna çıkar", self.start):
            return
        self.check("ana pencere: her denetimin adı var", self.all_named, MAIN, 10)

        self.check("yazar listesinde aşağı: yazar", self.hears, self.hears_focus, "FERHUNDE GÖKÇEOĞLU", "Down")
        self.check("yazar listesinde yukarı: yazar", self.hears, self.hears_focus, first, "Up")
        self.check("makale listesine gidilir", self.hears, self.hears_focus, "Makaleler", "Tab", "Tab")
        self.check("makale listesinde aşağı: başlık", self.hears, self.hears_focus, titles[1], "Down")
        self.check("makale listesinde yukarı: başlık", self.hears, self.hears_focus, titles[0], "Up")

        menu = ("F10", "Left", "Down")  # the last one, opened
        self.look_at("ekleme", "Listeye Makale Ekle...", 11, "Makale Ekle", ("ctrl+n",))
        self.look_at("değiştirme", "Makaleyi Değiştir...", 11, "Yazar Adı", ("F2",), ("Escape", "space"))
        self.look_at("silme", "Listeden Makale Sil...", 8, "Makaleler", ("Delete",))
        self.look_at("referans", "Referans Bilgisi Oluşturma...", 4, "Referans Bilgisi Oluşturma", ("F10", "Down", "r"))
        self.look_at("ayarlar", "Yazı Tipi Ayarları...", 11, "Yazı Tipleri", ("F10", "Right", "Return"))
        self.look_at("hakkında", "Hakkında", 2, "Tamam", (*menu, "h"))
        self.look_at("hata bildirme", "Hataları Bildirin!", 3, "Tamam", (*menu, "b"))
        self.look_at("kılavuzun içindekileri", GUIDE, 14, "İçindekiler", (*menu, "i"))
        self.look_at("kılavuzun dizini", GUIDE, 14, "Aranacak Terim", (*menu, "d"), before_closing=self.fill_guide)
        self.look_at("F1", GUIDE, 14, "İçindekiler", ("F1",))
        self.look_at("çıkış sorusu", BOX, 3, "Evet", ("Escape",))

        marked = "%d yer işaretlendi" % text.count(" %s " % word)
        self.check("bulma kutusuna gidilir", self.hears, self.hears_focus, "Bulunacak Sözcük", "ctrl+f")
        self.check("bulunanların sayısı söylenir", self.hears, self.hears_words, marked, "Return", typed=word)
        self.check("yeniden bulununca yeniden söylenir", self.hears, self.hears_words, marked, "Return")
        places = text.count(word)
        for place in (1, 2):
            self.check("F3 %d. yeri söyler" % place, self.hears, self.hears_words, "%d / %d" % (place, places), "F3")
        self.check("Shift+F3 önceki yeri söyler", self.hears, self.hears_words, "1 / %d" % places, "shift+F3")
        self.check("Shift+F3 sona geçtiğini söyler", self.hears, self.hears_words,
                   "%d / %d, sondan" % (places, places), "shift+F3")
        found = "%d makale bulundu!" % sum(word in text for text in texts)
        self.check("tümünde bulunanların sayısı söylenir", self.hears, self.hears_words, found, "ctrl+shift+f")
        self.check("program biter", self.end)


def main():
    try:
        test = Test(*sys.argv[1:])
    except GLib.Error as error:
        print("FAIL erişim yolu (at-spi2) açılır\n  " + str(error))
        return 1
    print("ok erişim yolu (at-spi2) açılır")
    try:
        test.run()
    except (Failed, GLib.Error) as error:  # a window does not close: nothing more can be learnt
        test.failures += 1
        print("FAIL pencere kapanır\n  " + str(error))
    finally:
        test.program.kill()
        test.program.wait()
    return 1 if test.failures else 0


sys.exit(main())
