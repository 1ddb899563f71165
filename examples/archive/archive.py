#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Converts an archive: all PNG, JPEG and Y4M files below a folder to one format, below another folder.

What is finished is skipped, so that an interrupted run is continued by starting it again."""
import argparse
import json
import pathlib
import sys
import time

import media
import zorcc


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0], epilog=__doc__.splitlines()[2])
    parser.add_argument("source", type=pathlib.Path, help="folder with PNG, JPEG and Y4M files, at any depth")
    parser.add_argument("destination", type=pathlib.Path, help="folder for the results, with the same folders in it")
    parser.add_argument("--to", default="yuv420p",
                        help="format of the results: .y4m where Y4M has it, otherwise planes without a header")
    for name in ("matrix", "from-matrix", "range", "alpha", "depth"):
        parser.add_argument(f"--{name}", help="as in zorcc.Options")
    parser.add_argument("--workers", type=int, default=1, help="processes on this machine")
    parser.add_argument("--scheduler", help="address of a Dask scheduler whose workers see both folders")
    parser.add_argument("--dry-run", action="store_true", help="only say what there is to do")
    return parser.parse_args()


def jobs_of(source, destination, format):
    """Files to convert, and how many there are in all. Two files that would have one result are an error."""
    files = sorted(path for path in source.rglob("*") if path.suffix.lower() in media.PICTURES | media.VIDEOS)
    results = {}
    for path in files:
        result = destination / path.relative_to(source).with_suffix(media.suffix_of(format))
        if result in results:
            sys.exit(f"{path} and {results[result]} would both become {result}")
        results[result] = path
    return [(path, result) for result, path in results.items() if not result.exists()], len(files)


def check_settings(destination, settings):
    """Results of other settings are not to be mixed with these."""
    record = destination / "settings.json"
    if record.exists() and json.loads(record.read_text()) != settings:
        sys.exit(f"{destination} holds results of other settings: {record.read_text().strip()}")
    return record


def show_progress(done, failed, count, report, start):
    seconds = time.perf_counter() - start
    bar = "#" * (30 * done // count)
    text = (f"[{bar:30}] {done}/{count} files, {report.read * 1e-6 / seconds:.1f} MB/s in, "
            f"{report.written * 1e-6 / seconds:.1f} MB/s out, {seconds / done * (count - done):.0f} s left"
            + (f", {failed} failed" if failed else ""))
    print(f"\r{text:100}" if sys.stderr.isatty() else text, end="" if sys.stderr.isatty() else "\n", file=sys.stderr)


def convert_all(client, jobs, format, options):
    """Converts with a few jobs waiting at each worker, however many there are. Gives the report, and the failures."""
    from distributed import as_completed

    def submit(job):
        futures[future := client.submit(media.convert_file, *map(str, job), format, options, pure=False)] = job
        return future

    futures, report, failures, waiting = {}, media.Report(), [], iter(jobs)
    start = time.perf_counter()
    first = range(4 * len(client.scheduler_info()["workers"]))
    running = as_completed([submit(job) for _, job in zip(first, waiting)])
    for done, future in enumerate(running, 1):
        path, _ = futures.pop(future)
        if future.status == "finished":
            report.add(future.result())
        else:
            failures.append(f"{path}: {future.exception()}")
        if (job := next(waiting, None)) is not None:
            running.add(submit(job))
        show_progress(done, len(failures), len(jobs), report, start)
    return report, failures, time.perf_counter() - start


def print_report(report, seconds):
    print(f"\n{report.files} files, {report.frames} frames, {report.megapixels:.0f} megapixels in {seconds:.1f} s: "
          f"{report.read * 1e-6 / seconds:.1f} MB/s in, {report.written * 1e-6 / seconds:.1f} MB/s out, "
          f"{report.megapixels / seconds:.1f} megapixels/s, {report.processor:.2f} s of processors")
    for stage, spent in report.seconds.items():
        rate = report.megapixels / spent if spent else float("inf")
        print(f"  {stage:8}{spent:8.2f} s of all workers, {rate:8.1f} megapixels/s of one")


def main():
    given = arguments()
    options = {name: value for name in ("matrix", "from_matrix", "range", "alpha", "depth")
               if (value := getattr(given, name)) is not None}
    zorcc.Plan("rgb24", given.to, (16, 16), **{key: value for key, value in options.items() if key != "from_matrix"})
    record = check_settings(given.destination, {"to": given.to, **options})
    jobs, count = jobs_of(given.source, given.destination, given.to)
    size = sum(path.stat().st_size for path, _ in jobs)
    print(f"{count} files, {count - len(jobs)} finished, {len(jobs)} to convert to {given.to}: {size * 1e-6:.1f} MB")
    if given.dry_run:
        for path, result in jobs:
            print(f"{path} -> {result}")
        return
    if not jobs:
        return
    given.destination.mkdir(parents=True, exist_ok=True)
    with media.atomic(record) as file:
        file.write(json.dumps({"to": given.to, **options}).encode() + b"\n")

    from distributed import Client, LocalCluster  # takes a second
    cluster = given.scheduler or LocalCluster(n_workers=given.workers, threads_per_worker=1, dashboard_address=None)
    with Client(cluster) as client:
        client.upload_file(media.__file__)
        report, failures, seconds = convert_all(client, jobs, given.to, options)
    if not given.scheduler:
        cluster.close()
    print_report(report, seconds)
    if failures:
        sys.exit("\n".join(failures))


if __name__ == "__main__":
    main()
