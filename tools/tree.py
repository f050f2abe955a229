"""What the lints share: the files of the tree, code without comments and texts, and the ratchet of known sins."""

import pathlib
import re
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
SINS = "tools/known_sins.txt"
SKIPPED = {"build", "demo-shots"}


def root_from_arguments():
    return pathlib.Path(sys.argv[1]).resolve() if len(sys.argv) > 1 else HERE.parent


def files(root):
    """All files that are tracked or new but not ignored, as sorted paths relative to the root."""
    listing = None
    if (root / ".git").exists():
        command = ["git", "-c", f"safe.directory={root}", "-C", str(root), "ls-files", "-z", "--cached", "--others",
                   "--exclude-standard"]
        try:
            listing = subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.decode().split("\0")
        except FileNotFoundError:
            pass  # git is not installed; the walk below finds the same files in a clean tree.
    if listing is None:
        listing = [str(path.relative_to(root)) for path in root.rglob("*")]
        listing = [name for name in listing
                   if not SKIPPED & set(name.split("/")) and not name.startswith((".git/", ".cache/"))]
    return sorted({name for name in listing if name and (root / name).is_file()})


def sources(root):
    return [name for name in files(root) if name.endswith((".h", ".cpp"))]


def read(root, name):
    return (root / name).read_bytes().decode("utf-8", "replace").replace("\r\n", "\n")


TOKEN = re.compile(
    r'//(?:[^\n\\]|\\.|\\\n)*'
    r'|/\*.*?\*/'
    r'|R"(?P<mark>[^()\\\s]*)\(.*?\)(?P=mark)"'
    r'|"(?:[^"\\\n]|\\.)*"'
    r"|(?<![0-9A-Za-z_])(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+'", re.S)


def without_comments(text, keep_texts=False):
    """The text with comments, and unless they are kept also string and character texts, blanked line by line."""
    def blank(match):
        token = match.group()
        if not token.startswith(("//", "/*")):
            if keep_texts:
                return token
            return '"' + "\n" * token.count("\n") + '"'
        return " " + "\n" * token.count("\n")
    return TOKEN.sub(blank, text)


def without_directives(code):
    return re.sub(r"(?m)^[ \t]*#(?:[^\n\\]|\\.|\\\n)*", lambda match: "\n" * match.group().count("\n"), code)


def report(root, lint, findings):
    """Compares the findings, a dict from a stable text to the place where it was seen, with the known sins.

    Returns the exit status: 0 when there is no new finding and no line that could go.
    """
    path = root / SINS
    lines = path.read_text().splitlines() if path.exists() else []
    known = {line for line in lines if line.startswith(lint + ": ")}
    seen = {f"{lint}: {text}": place for text, place in findings.items()}
    for text in sorted(set(seen) - known):
        print(f"{seen[text]}: {text}")
    for text in sorted(known - set(seen)):
        print(f"{SINS}: remove this line, it no longer occurs: {text}")
    strange = [line for line in lines if line and not line.startswith(("#", "includes: ", "sizes: ", "words: "))]
    for line in strange:
        print(f"{SINS}: belongs to no lint: {line}")
    return 1 if set(seen) != known or strange else 0
