#!/usr/bin/env bash
# Runs a command and shows what it printed only if it fails, with its status.
output=$("$@" 2>&1) || { status=$?; printf '%s\n' "$output" >&2; exit $status; }
