#!/usr/bin/env python3
"""Runs the example server as its users would: clients in many languages, by curl and by wrk, while
its texts are replaced.

    http_server_test.py SERVER CATALOGUES

Says what differs and exits with 1.
"""
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading

HERE = pathlib.Path(__file__).resolve().parent
LOAD_SECONDS = 2
# The library's pools of texts do not grow with requests, nor with texts that were there before; what
# the allocator takes for a few more connections at once does.
MOST_GROWTH = 4 * 1024 * 1024

# What a client asks for, and what it gets.
PAGES = [
    ("en", "EN", "Welcome to alpha, Ann.", "User name:"),
    ("fr", "FR", "Bienvenue sur alpha, Ann.", "Nom d’utilisateur\u00a0:"),
    ("fr-CA", "FR-CA", None, None),
    ("fr-CH, fr;q=0.9, en;q=0.8", "FR", "Bienvenue sur alpha, Ann.", None),
    ("en;q=0.2, ja;q=0.9", "JA", None, None),
    ("FR-ca;q=0.5, tlh", "FR-CA", None, None),
    ("de;q=0, fr", "FR", "Bienvenue sur alpha, Ann.", None),
    ("tlh", "EN", "Welcome to alpha, Ann.", None),
    ("*", "EN", "Welcome to alpha, Ann.", "User name:"),
    ("", "EN", "Welcome to alpha, Ann.", None),
    (";;q=x,,\x7f=,-", "EN", "Welcome to alpha, Ann.", None),
    ("x" * 4000, "EN", "Welcome to alpha, Ann.", None),
]


class Server:
    """The server in a tree of its own, with the catalogues where it finds them by itself."""

    def __init__(self, program, catalogues, root):
        self.resources = root / "resources"
        shutil.copytree(catalogues, self.resources)
        (root / "bin").mkdir()
        copy = shutil.copy(program, root / "bin")
        self.process = subprocess.Popen([copy], stdout=subprocess.PIPE, text=True, cwd=root)
        ready = self.process.stdout.readline()
        self.port = re.fullmatch(r"The gateway is ready on port (\d+)\.\n", ready).group(1)

    def url(self, page):
        return f"http://127.0.0.1:{self.port}{page}"

    def resident_bytes(self):
        status = pathlib.Path(f"/proc/{self.process.pid}/status").read_text()
        return int(re.search(r"VmRSS:\s+(\d+) kB", status).group(1)) * 1024


def ask(url, accept):
    """Language and body of an answer."""
    asked = ["-H", f"Accept-Language: {accept}"] if accept else []
    written = subprocess.run(["curl", "-sS", "-i", *asked, url], check=True, capture_output=True)
    head, _, body = written.stdout.decode().partition("\r\n\r\n")
    language = re.search(r"(?i)^content-language: (.*?)\r?$", head, re.MULTILINE)
    assert head.startswith("HTTP/1.1 200 "), head
    return language.group(1), body


def check_pages(server):
    for accept, language, welcome, prompt in PAGES:
        for page, expected in (("/welcome?name=Ann", welcome), ("/login", prompt)):
            answer = ask(server.url(page), accept)
            assert answer[0] == language, (accept, page, answer)
            assert answer[1].endswith("\n") and len(answer[1]) > 1, (accept, page, answer)
            assert expected is None or answer[1] == expected + "\n", (accept, page, answer)


def replace(path, text):
    """As an installer does: whole, under another name, then at once."""
    beside = path.with_suffix(".new")
    beside.write_text(text, encoding="utf-8")
    os.replace(beside, path)


class Installer(threading.Thread):
    """Replaces the texts of two languages all the time, and tells the server now and then."""

    def __init__(self, server):
        super().__init__()
        self.server = server
        self.files = [server.resources / "FR" / "gateway.lang",
                      server.resources / "EN" / "gateway.lang"]
        self.texts = [path.read_text(encoding="utf-8") for path in self.files]
        self.end = threading.Event()
        self.rounds = 0

    def run(self):
        while not self.end.wait(0.02):
            self.install(second=self.rounds % 2 == 0)
            if self.rounds % 10 == 0:
                self.server.process.send_signal(signal.SIGHUP)
            self.rounds += 1

    def install(self, second):
        for path, text in zip(self.files, self.texts):
            if second:
                text = text.replace("Welcome to", "Welcome back to")
                text = text.replace("Bienvenue sur", "De retour sur")
            replace(path, text)


def load(server):
    """Clients on both machines' worth of connections; answers what wrk counted."""
    answers = "\n".join([
        "en|EN|Welcome to alpha, Ann.|Welcome back to alpha, Ann.",
        "fr-FR, fr;q=0.9|FR|Bienvenue sur alpha, Ann.|De retour sur alpha, Ann.",
        "tlh, en;q=0.1|EN|Welcome to alpha, Ann.|Welcome back to alpha, Ann."])
    written = subprocess.run(
        ["wrk", "-t2", "-c8", f"-d{LOAD_SECONDS}s", "-s", HERE / "check_answers.lua",
         server.url("/welcome?name=Ann")],
        env=dict(os.environ, KX_ANSWERS=answers), check=True, capture_output=True, text=True)
    counted = re.search(r"RESULT right=(\d+) wrong=(\d+) first=(\d+) second=(\d+) errors=(\d+)",
                        written.stdout)
    assert counted, written.stdout + written.stderr
    right, wrong, first, second, errors = map(int, counted.groups())
    print(f"{right} answers, {first} of them old texts and {second} new ones")
    assert wrong == 0 and errors == 0, written.stdout
    assert first > 0 and second > 0, written.stdout


def check_under_load(server):
    installer = Installer(server)
    installer.start()
    try:
        load(server)  # until everything has been asked for
        before = server.resident_bytes()
        load(server)
        growth = server.resident_bytes() - before
    finally:
        installer.end.set()
        installer.join()
    print(f"replaced {installer.rounds} times; memory grew by {growth} bytes")
    assert installer.rounds > 1 and growth < MOST_GROWTH, growth
    installer.install(second=True)
    assert ask(server.url("/welcome?name=Bo"), "fr") == ("FR", "De retour sur alpha, Bo.\n")


def check_new_language(server):
    shutil.copytree(server.resources / "FR", server.resources / "PT")
    server.process.send_signal(signal.SIGHUP)
    for _ in range(200):
        if ask(server.url("/login"), "pt-BR, pt")[0] == "PT":
            return
    raise AssertionError("a language that was installed is not served")


def main():
    program, catalogues = sys.argv[1:]
    with tempfile.TemporaryDirectory() as root:
        server = Server(program, catalogues, pathlib.Path(root))
        try:
            check_pages(server)
            check_under_load(server)
            check_new_language(server)
            server.process.terminate()
            assert server.process.wait(10) == 0, "the server did not end well"
        finally:
            server.process.kill()
            server.process.wait()


if __name__ == "__main__":
    main()
