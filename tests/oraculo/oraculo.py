#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Oracle of the engine: the same model and command line as siro-lote, as slow plain Python.

    oraculo.py una   CONF [options]
    oraculo.py serie CONF [options]
"""
import sys

import lote

if __name__ == "__main__":
    sys.exit(lote.corre(sys.argv[1:]))
