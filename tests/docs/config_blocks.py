"""Checks of what the documents show in the languages of a system's configuration. Each answers what is
wrong, or nothing."""

import gzip
import os
import pathlib
import re
import shutil
import subprocess
import tempfile

LOG = "/var/log/product/translate.log"
VARIABLES = {"TAVI_XLATE_ROOT", "TAVI_AGENT_ROOT", "PWSVC_HOME", "TAVI_PROXY_ROOT",
             "TAVI_POLSRV_ROOT", "KXXLATE_LOG"}


def run(command, **options):
    return subprocess.run(command, text=True, check=False, timeout=60, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, **options)


def check_unit(text, folder, _):
    """A unit of systemd; what starts nothing belongs to one that does."""
    for line in text.splitlines():
        if not re.fullmatch(r"\[\w+\]|[A-Z]\w+=\S.*|#.*|", line):
            return f"no line of a unit: {line}"
    for variable in re.findall(r"^Environment=\"?(\w+)=", text, re.M):
        if variable not in VARIABLES:
            return f"no host reads {variable}"
    if "ExecStart=" not in text:
        text = text.replace("[Service]\n", "[Service]\nExecStart=/usr/bin/server\n")
    if not shutil.which("systemd-analyze"):
        return None
    unit = folder / "server.service"
    unit.write_text(re.sub(r"^ExecStart=\S+", "ExecStart=/bin/true", text, flags=re.M))
    said = run(["systemd-analyze", "verify", unit])
    # It goes on where it does not know a word, and succeeds.
    return said.stdout if said.stdout or said.returncode else None


def check_rotation(text, folder, host):
    """Rotates the log of a host between two of its lines: none may be lost, or land elsewhere."""
    if LOG not in text:
        return f"is not about {LOG}"
    place = pathlib.Path(tempfile.mkdtemp(dir=folder))
    (place / "product" / "resources").mkdir(parents=True)
    log = place / "translate.log"
    settings = place / "logrotate.conf"
    settings.write_text(text.replace(LOG, str(log)))
    settings.chmod(0o644)
    place.chmod(0o755)
    catalogue = place / "product" / "resources" / "agent_fr.properties"
    catalogue.write_text("Present=yes\n")
    rotate = f"PATH=$PATH:/usr/sbin logrotate -f -s '{place}/state' '{settings}' >&2"
    ran = run([host, "text", "agent", "fr", "FIRST", "shell", rotate, "text", "agent", "fr", "SECOND"],
              env={**os.environ, "TAVI_XLATE_ROOT": str(place / "product"), "KXXLATE_LOG": str(log)})
    if ran.stdout != "(null)\ntrue\n(null)\n":
        return ran.stdout
    old = place / "translate.log.1"
    old_text = (gzip.decompress((place / "translate.log.1.gz").read_bytes()).decode()
                if not old.exists() else old.read_text())
    line = f"{catalogue} key not found: %s\n"
    if (old_text, log.read_text()) != (line % "FIRST", line % "SECOND"):
        return f"rotated: {old_text!r}, still written: {log.read_text()!r}"
    return None
