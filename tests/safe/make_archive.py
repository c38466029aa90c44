"""Makes archives that the program has to import or to refuse: CASE SAFE-FOLDER TARGET."""

import os
import struct
import sys
import warnings
import zipfile

case, safe, target = sys.argv[1:]
warnings.simplefilter("ignore")

files = []
for folder, _, names in os.walk(safe):
    for name in names:
        path = os.path.join(folder, name)
        files.append((os.path.relpath(path, safe), open(path, "rb").read()))
files.sort()


def write(entries, **options):
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, **options) as archive:
        for name, content in entries:
            archive.writestr(name, content)


def patch(change):
    content = bytearray(open(target, "rb").read())
    content = change(content) or content
    open(target, "wb").write(content)


def without(*gone):
    return [entry for entry in files if entry[0] not in gone]


def info(name, **values):
    result = zipfile.ZipInfo(name)
    for key, value in values.items():
        setattr(result, key, value)
    return result


def flip(content, marker, offset):
    content[content.index(marker) + offset] ^= 1


def lie_about_sizes(size):
    """Says in every header that the entry unpacks to so many bytes."""
    def change(content):
        for marker, offset in ((b"PK\3\4", 22), (b"PK\1\2", 24)):
            at = content.find(marker)
            while at >= 0:
                content[at + offset:at + offset + 4] = struct.pack("<I", size)
                at = content.find(marker, at + 4)
    return change


extra = {
    "parent": "../evil",
    "parent inside": "content/../../evil",
    "absolute": "/tmp/evil",
    "drive": "C:/evil",
    "drive relative": "C:evil",
    "backslashes": "content\\evil",
    "backslash parent": "..\\evil",
    "stream": "content/a:b",
    "empty part": "content//evil",
    "dot": "content/./evil",
    "line end": "content/a\nb",
}
if case in extra:
    write(files + [(extra[case], b"x")])
elif case == "not a zip":
    open(target, "wb").write(b"This is a letter, and no archive at all.\n" * 100)
elif case == "empty file":
    open(target, "wb").close()
elif case == "no entries":
    write([])
elif case == "cut in the middle":
    write(files)
    patch(lambda content: content[: len(content) // 2])
elif case == "cut at the end":
    write(files)
    patch(lambda content: content[:-30])
elif case == "checksum":
    write(files)
    patch(lambda content: flip(content, b"PK\1\2", 16))
elif case == "content":
    with zipfile.ZipFile(target, "w", zipfile.ZIP_STORED) as archive:
        for name, content in files:
            archive.writestr(name, content)
    patch(lambda content: flip(content, b"safe.passid", 40))
elif case == "unknown damaged":
    write(files + [("notes.txt", b"some unknown entry")])
    patch(lambda content: flip(content, b"notes.txt", 12))
elif case == "sizes too small":
    write(files)
    patch(lie_about_sizes(10))
elif case == "sizes too large":
    write(files)
    patch(lie_about_sizes(1_000_000))
elif case == "symbolic link":
    write(files + [(info("content/link", create_system=3, external_attr=0o120777 << 16), "/etc")])
elif case == "name twice":
    write(files + [files[0]])
elif case == "name in other case":
    name = next(name for name, _ in files if name.startswith("content/") and "b" in name)
    write(files + [("content/" + name[8:].upper(), b"1")])
elif case == "nul":
    write(files + [("content/aZb", b"1")])
    patch(lambda content: content.replace(b"content/aZb", b"content/a\0b"))
elif case == "unknown name twice":
    write(files + [("notes.txt", b"1"), ("notes.txt", b"2")])
elif case == "hundred times":
    write(files + [("content/zeros", bytes(20_000_000))])
elif case == "hundred times elsewhere":
    write(files + [("zeros", bytes(20_000_000))])
elif case == "bzip2":
    write(files)
    with zipfile.ZipFile(target, "a", zipfile.ZIP_BZIP2) as archive:
        archive.writestr("content/packed", b"x" * 100)
elif case == "no description":
    write(without("safe.meta", "safe.restore"))
elif case == "no pass id":
    write(without("safe.passid"))
elif case == "empty pass id":
    write(without("safe.passid") + [("safe.passid", b"")])
elif case == "inside a folder":
    write([("My safe/" + name, content) for name, content in files])
elif case == "second description only":
    write(without("safe.meta"))
elif case == "reversed":
    write(list(reversed(files)))
elif case == "unknown entries":
    write(files + [("notes.txt", b"x"), ("more/inside/it", b"y"), ("content/sub/z", b"z"),
                   ("safe.sync", b"{}"), (".sourcelock", b"1"), ("content/nul", b"n"),
                   ("content/COM1.txt", b"c"), ("content/con .x", b"c"), ("content/dot.", b"d"),
                   ("favicon/space ", b"s"), ("README", b"1"), ("readme", b"2")])
elif case == "streamed":
    class Pipe:
        """Cannot seek, so sizes come behind the content."""
        def __init__(self, file): self.file = file
        def write(self, content): return self.file.write(content)
        def flush(self): self.file.flush()
    with open(target, "wb") as file:
        with zipfile.ZipFile(Pipe(file), "w", zipfile.ZIP_DEFLATED) as archive:
            for name, content in files:
                archive.writestr(name, content)
elif case == "zip64":
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, content in files:
            with archive.open(info(name, compress_type=8), "w", force_zip64=True) as entry:
                entry.write(content)
else:
    sys.exit("unknown case " + case)
