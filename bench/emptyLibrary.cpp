// A library with nothing to do when it is loaded, as the least that loading one can cost.

extern "C" __attribute__((visibility("default"))) int benchEmptyLibrary()
{
    return 0;
}
