#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs a test program on a model of another processor, which stops at every instruction that it does not have:
# on_processor.sh MODEL PROGRAM [ARGUMENT ...]
set -euo pipefail
command -v qemu-x86_64 >/dev/null || { echo "skipped: no qemu-x86_64"; exit 77; }
model=$1
shift
# The model lacks what the emulator does not know, which it would say on every start.
exec qemu-x86_64 -cpu "$model" "$@"
