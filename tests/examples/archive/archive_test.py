# SPDX-License-Identifier: MIT
"""The archive example: an interrupted run leaves whole results alone, and the next one makes the others."""
import os
import pathlib
import signal
import subprocess
import sys
import time

import numpy
import PIL.Image
import pytest

import zorcc

FOLDER = pathlib.Path(os.environ["ZORCC_SOURCE"]) / "examples" / "archive"
sys.path.insert(0, str(FOLDER))
import media  # noqa: E402

COUNT = 24


def run(*words, **options):
    return subprocess.run([sys.executable, FOLDER / "archive.py", *map(str, words)], capture_output=True, text=True,
                          timeout=60, **options)


def picture(seed, size=(640, 480)):
    return numpy.random.default_rng(seed).integers(0, 256, (size[1], size[0], 3), dtype=numpy.uint8)


@pytest.fixture
def archive(tmp_path):
    (tmp_path / "in" / "deep").mkdir(parents=True)
    for i in range(COUNT):
        PIL.Image.fromarray(picture(i)).save(tmp_path / "in" / "deep" / f"{i}.png")
    return tmp_path


def check_results(folder):
    """All that are there are whole; how many"""
    found = list((folder / "out" / "deep").glob("*.nv12"))
    for path in found:
        assert path.read_bytes() == zorcc.convert(picture(int(path.stem)), "rgb24", "nv12", joined=True).tobytes()
    return len(found)


def test_interrupted_and_restarted(archive):
    words = [archive / "in", archive / "out", "--to", "nv12"]
    dry = run(*words, "--dry-run")
    assert f"{COUNT} to convert" in dry.stdout and not (archive / "out").exists()

    first = subprocess.Popen([sys.executable, FOLDER / "archive.py", *map(str, words)], start_new_session=True,
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        deadline = time.monotonic() + 60
        while not list((archive / "out").rglob("*.nv12")):
            assert time.monotonic() < deadline and first.poll() is None
            time.sleep(0.002)
    finally:
        os.killpg(first.pid, signal.SIGKILL)
    first.wait()
    done = check_results(archive)
    assert 0 < done < COUNT
    kept = {path: path.stat().st_mtime_ns for path in (archive / "out").rglob("*.nv12")}

    second = run(*words, "--workers", 2)
    assert second.returncode == 0, second.stderr
    assert f"{done} finished, {COUNT - done} to convert" in second.stdout
    assert check_results(archive) == COUNT
    assert all(path.stat().st_mtime_ns == moment for path, moment in kept.items())
    assert not list((archive / "out").rglob("*.part")) and f"{COUNT}/{COUNT}" not in second.stderr

    assert "0 to convert" in run(*words).stdout
    other = run(archive / "in", archive / "out", "--to", "yuv420p")
    assert other.returncode != 0 and "other settings" in other.stderr


def write_y4m(path, frames, extra=b""):
    path.write_bytes(b"YUV4MPEG2 W16 H8 F30:1 Ip A1:1 C420mpeg2 XCOLORRANGE=FULL\n" +
                     b"".join(b"FRAME\n" + frame.tobytes() for frame in frames) + extra)


def test_segments(tmp_path):
    frames = [numpy.random.default_rng(i).integers(0, 256, (12, 16), dtype=numpy.uint8) for i in range(3)]
    write_y4m(tmp_path / "a.y4m", frames)
    options = {"matrix": "bt709"}
    report = media.convert_file(tmp_path / "a.y4m", tmp_path / "a.rgb24", "rgb24", options)
    expected = [zorcc.convert(frame, "i420", "rgb24", matrix="bt709", range="full").tobytes() for frame in frames]
    assert (tmp_path / "a.rgb24").read_bytes() == b"".join(expected) and report.frames == 3
    media.convert_file(tmp_path / "a.y4m", tmp_path / "b.y4m", "yuv422p", options)
    header = b"YUV4MPEG2 W16 H8 F30:1 Ip A1:1 C422 XCOLORRANGE=LIMITED\nFRAME\n"
    assert (tmp_path / "b.y4m").read_bytes().startswith(header)


def test_broken_files_leave_no_results(tmp_path):
    frame = numpy.zeros((12, 16), numpy.uint8)
    write_y4m(tmp_path / "short.y4m", [frame], b"FRAME\n" + bytes(10))
    write_y4m(tmp_path / "none.y4m", [])
    (tmp_path / "deep.y4m").write_bytes(b"YUV4MPEG2 W16 H8 C420p10\n")
    (tmp_path / "no.png").write_bytes(b"\x89PNG\r\n\x1a\nno")
    for name in ("short.y4m", "none.y4m", "deep.y4m", "no.png"):
        with pytest.raises((ValueError, OSError)):
            media.convert_file(tmp_path / name, tmp_path / "out" / "result", "nv12", {})
    assert not (tmp_path / "out").exists() or not list((tmp_path / "out").iterdir())
