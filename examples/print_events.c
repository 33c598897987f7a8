/* Prints the analyzer events that a device announces, each as it is handed to a callback.
     cc -std=c99 print_events.c $(pkg-config --cflags --libs orrery) */
#include <orrery/orrery.h>
#include <stdio.h>

static const char text[] = "{ \"Event\" : ["
                           "  { \"Code\" : \"TrafficOverSpeed\", \"Action\" : \"Pulse\", \"Data\" : {"
                           "      \"UTC\" : 1795167000, \"Lane\" : 2, \"Speed\" : 88, \"SpeedLimit\" : [ 40, 80 ],"
                           "      \"TrafficCar\" : { \"PlateNumber\" : \"A12345\" } } },"
                           "  { \"Code\" : \"AccessControl\", \"Index\" : 1, \"Action\" : \"Pulse\", \"Data\" : {"
                           "      \"Type\" : \"Entry\", \"Status\" : 1, \"CardNo\" : \"4711\" } },"
                           "  { \"Code\" : \"VideoBlind\", \"Action\" : \"Start\" } ] }";

/* README: begin */
/* The record lives only during the call: copy what is needed later. */
static int32_t on_event(uint32_t type, const void* record, uint32_t size, void* reserved, int32_t sequence,
                        void* user) {
    int* count = user;
    (void)size, (void)reserved, (void)sequence;
    ++*count;
    switch (type) {
    case ORRERY_EVENT_TRAFFIC_OVER_SPEED: {
        const DEV_EVENT_TRAFFICOVERSPEED_INFO* event = record;
        /* a plate may fill its field, without a terminator */
        printf("%.32s drives %d km/h on lane %d\n", event->stuTrafficCar.szPlateNumber, (int)event->nSpeed,
               (int)event->nLane);
        break;
    }
    case ORRERY_EVENT_ACCESS_CONTROL: {
        const DEV_EVENT_ACCESSCONTROL_INFO* event = record;
        printf("card %s at door %d\n", event->szCardNo, (int)event->nChannelID);
        break;
    }
    default:
        printf("event %u\n", (unsigned)type);
    }
    return 0;
}
/* README: end */

int main(void) {
    int count = 0;
    if (!CLIENT_ParseAnalyzerEventData(text, sizeof text, on_event, &count)) return 1;
    printf("%d events\n", count);
    return 0;
}
