// A library with a singleton, for the test to load and close: it tells of its life through a callback.
#include <tvxCore/Singleton.h>

namespace {

using Callback = void (*)(const char*);

Callback tell = nullptr;

class Resident : public tarvox::core::Singleton<Resident>
{
    friend class tarvox::core::Singleton<Resident>;

    Resident() { tell("made"); }
    ~Resident() override { tell("gone"); }
};

} // namespace

extern "C" __attribute__((visibility("default"))) const void* residentOf(Callback callback)
{
    tell = callback;
    return &Resident::getInstance();
}
