/* Events that outlive their callback: a record lives only during the call, so what stays is copied. */
#include <orrery/orrery.h>
#include <stdio.h>
#include <stdlib.h>

static const char text[] = "{ \"Event\" : ["
                           "  { \"Code\" : \"TrafficOverSpeed\", \"Action\" : \"Pulse\", \"Data\" : {"
                           "      \"Lane\" : 2, \"Speed\" : 88, \"TrafficCar\" : { \"PlateNumber\" : \"A12345\" } } },"
                           "  { \"Code\" : \"AccessControl\", \"Index\" : 1, \"Action\" : \"Pulse\", \"Data\" : {"
                           "      \"CardNo\" : \"4711\" } } ] }";

struct kept {
    uint32_t type;
    void* record;
};
struct queue {
    struct kept events[16];
    int count;
};

static int32_t keep(uint32_t type, const void* record, uint32_t size, void* reserved, int32_t sequence, void* user) {
    struct queue* queue = user;
    uint32_t bytes = ORRERY_CopyEvent(type, record, size, NULL, 0); /* with all that its pointers lead to */
    void* copy = malloc(bytes);
    (void)reserved, (void)sequence;
    if (copy == NULL || queue->count == 16) {
        free(copy);
        return 0;
    }
    if (ORRERY_CopyEvent(type, record, size, copy, bytes) == 0) return 0;
    queue->events[queue->count].type = type;
    queue->events[queue->count++].record = copy;
    return 0;
}

int main(void) {
    static struct queue queue;
    int i;

    if (!CLIENT_ParseAnalyzerEventData(text, sizeof text, keep, &queue)) return 1;
    printf("%d events\n", queue.count);
    for (i = 0; i < queue.count; ++i) {
        if (queue.events[i].type == ORRERY_EVENT_TRAFFIC_OVER_SPEED) {
            const DEV_EVENT_TRAFFICOVERSPEED_INFO* event = queue.events[i].record;
            /* a plate may fill its field, without a terminator */
            printf("%.32s drives %d km/h on lane %d\n", event->stuTrafficCar.szPlateNumber, (int)event->nSpeed,
                   (int)event->nLane);
        } else if (queue.events[i].type == ORRERY_EVENT_ACCESS_CONTROL) {
            const DEV_EVENT_ACCESSCONTROL_INFO* event = queue.events[i].record;
            printf("card %s\n", event->szCardNo);
        }
        free(queue.events[i].record);
    }
    return 0;
}
