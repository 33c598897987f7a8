/* Any number of threads may call at once, each with buffers of its own. */
#include <orrery/orrery.h>
#include <pthread.h>
#include <stdio.h>

enum { THREADS = 4, REPLIES = 1000 };

static const char reply[] = "{ \"result\" : true, \"params\" : { \"table\" : { \"Enable\" : true, \"Port\" : 123 } } }";

static void* work(void* count) {
    CFG_NTP_INFO clock;
    int i;
    for (i = 0; i < REPLIES; ++i) {
        if (CLIENT_ParseData("NTP", reply, &clock, sizeof clock, NULL) && clock.nPort == 123) ++*(int*)count;
    }
    return NULL;
}

int main(void) {
    pthread_t threads[THREADS];
    int counts[THREADS] = {0}, i, all = 0;
    for (i = 0; i < THREADS; ++i)
        if (pthread_create(&threads[i], NULL, work, &counts[i]) != 0) return 1;
    for (i = 0; i < THREADS; ++i) {
        pthread_join(threads[i], NULL);
        all += counts[i];
    }
    printf("%d replies in %d threads\n", all, THREADS);
    return 0;
}
