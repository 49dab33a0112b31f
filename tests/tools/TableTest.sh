#!/bin/bash
# bench/as-table makes tables of the lines that the benchmarks print.

set -euo pipefail
source_tree=$(cd "$(dirname "$0")/../.." && pwd)

diff - <("$source_tree/bench/as-table" work "one way" "another" ratio <<'END'
surface in U space, 500 x 500                 plain    88.1234 ms  ours     2.2010 ms  ratio  40.04
one key step                                  64 x 64     0.0721 ms  500 x 500     0.0743 ms  ratio   0.97
image of U                                    ours   379.3856 ms
END
) <<'END'
| work | one way | another | ratio |
|---|---|---|---|
| surface in U space, 500 x 500 | plain 88.1234 ms | ours 2.2010 ms | ratio 40.04 |
| one key step | 64 x 64 0.0721 ms | 500 x 500 0.0743 ms | ratio 0.97 |
| image of U | ours 379.3856 ms |
END

diff - <("$source_tree/bench/as-table" work time "largest process" <<'END'
100 pictures .eps, a call each on 2 cores              56.01 s    168 MB
END
) <<'END'
| work | time | largest process |
|---|---|---|
| 100 pictures .eps, a call each on 2 cores | 56.01 s | 168 MB |
END

diff - <("$source_tree/bench/as-table" state memory <<'END'
viewer, 500 x 500, after 20 changes of parameters      534 MB
END
) <<'END'
| state | memory |
|---|---|
| viewer, 500 x 500, after 20 changes of parameters | 534 MB |
END
