// A module that does nothing.

extern "C" __attribute__((visibility("default"))) int moduleStandIn()
{
    return 0;
}
