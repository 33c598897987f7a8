"""The interpreter's lock is released during calls, so that threads read at once."""
from concurrent.futures import ThreadPoolExecutor

import orrery

REPLY = '{ "result" : true, "params" : { "table" : { "Enable" : true, "Port" : 123 } } }'
THREADS, REPLIES = 4, 1000


def work(_number):
    return sum(orrery.parse("NTP", REPLY).port == 123 for _ in range(REPLIES))


with ThreadPoolExecutor(THREADS) as pool:
    print(sum(pool.map(work, range(THREADS))), "replies in", THREADS, "threads")
