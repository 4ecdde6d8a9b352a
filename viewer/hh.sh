#!/bin/sh
# Starts the help viewer, which stands beside the program.
exec "$(dirname "$(readlink -f "$0")")/../../bin/caudalera-ayuda" "$@"
