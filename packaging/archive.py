"""Archives and times that depend on contents alone: equal contents make equal archives."""
import datetime
import zipfile

TIME = datetime.datetime(2026, 1, 1, tzinfo=datetime.timezone.utc)  # of everything that is packed


def write(target, files):
    """Packs files, given as bytes by their names."""
    target.parent.mkdir(parents=True, exist_ok=True)
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for name, data in sorted(files.items()):
            entry = zipfile.ZipInfo(name, TIME.timetuple()[:6])
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.external_attr = 0o644 << 16
            entry.create_system = 0
            archive.writestr(entry, data)
    print(f"dist: {target}, {target.stat().st_size // 1024} KiB")


def read(path):
    """The files of an archive, as bytes by their names."""
    with zipfile.ZipFile(path) as packed:
        return {name: packed.read(name) for name in packed.namelist()}
