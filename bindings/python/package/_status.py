# SPDX-License-Identifier: MIT
"""Statuses of the libraries, and the errors that carry them."""
from __future__ import annotations

import enum

from ._headers import STATUSES

# What calls return: of an Error its reason. The members are those of the C headers.
Status = enum.IntEnum("Status", {name: number for name, (number, _) in STATUSES.items()})  # type: ignore[misc]

_TEXTS = {number: f"{text} ({name})" for name, (number, text) in STATUSES.items()}


def text_of(status: int) -> str:
    """What the headers say of a status."""
    return _TEXTS.get(status, f"status {status}")


class Error(ValueError):
    """A picture, a plan or an argument that cannot be. `status` is that of the C libraries, as a `Status`."""

    def __init__(self, text: str, status: int):
        super().__init__(text, status)
        self.status = Status(status) if status in _TEXTS else status

    def __str__(self) -> str:
        return str(self.args[0])


class StatusWarning(UserWarning):
    """A call of a function that has left something out, such as a last column."""
