#pragma once

#include <chrono>
#include <cstddef>
#include <sys/types.h>

#include "OrvelPlatform/Desktop/BusConnection.h"

namespace orvelbench {

/// A service that the bus starts when it is asked something, as a host meets it. What goes wrong is thrown: nothing is
/// measured then.
class Service {
public:
    /// Where it is found on the bus. The texts are literals.
    struct Address {
        const char* name;
        const char* path;
        const char* interface;
    };

    Service(const orvel::BusConnection& bus, Address address) : m_bus(bus), m_address(address) { }

    /// Calls a method and waits for its answer. The pixels that come with it are closed. A floating value is taken.
    orvel::VariantHandle call(const char* method, _GVariant* arguments) const;

    /// How long `call` takes.
    std::chrono::duration<double, std::micro> time(const char* method, _GVariant* arguments) const;

    /// Ends the process, if there is one, and returns when the bus knows.
    void end() const;

    /// The processor time of all its threads since it was started.
    std::chrono::duration<double, std::micro> processorTime() const;

    /// What of it lies in memory, in KiB.
    std::size_t residentMemory() const;

private:
    bool isRunning() const;
    pid_t process() const;

    const orvel::BusConnection& m_bus;
    Address m_address;
};

}
