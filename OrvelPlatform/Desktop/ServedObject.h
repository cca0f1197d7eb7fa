#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <string_view>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Desktop/AnswerWriting.h"
#include "OrvelPlatform/Desktop/BusConnection.h"

struct _GDBusInterfaceInfo;
struct _GDBusMethodInvocation;

namespace orvel {

/// A call from another process, whose arguments have the types that the contract says. It is answered once; one that is
/// forgotten is answered with an error.
class MethodCall {
public:
    explicit MethodCall(_GDBusMethodInvocation* invocation); // taken over

    std::string_view sender() const;
    std::string_view method() const;

    /// An argument, by its place.
    VariantHandle argument(std::size_t index) const;

    void answer(Answer<Reply> reply);
    void answer(const Answer<void>& done);

private:
    struct Release {
        void operator()(_GDBusMethodInvocation* invocation) const;
    };
    void refuse(const RequestFault& fault);

    std::unique_ptr<_GDBusMethodInvocation, Release> m_invocation;
};

/// An interface served at a path as long as this lives. Calls arrive on the connection's loop, with arguments of the
/// types that the interface says. The connection outlives it.
class ServedObject {
public:
    using Handler = std::function<void(MethodCall)>;

    /// What a property holds now; one of the interface's own, the bus library refuses others.
    using PropertyReader = std::function<VariantHandle(std::string_view property)>;

    /// An interface of the contract.
    [[nodiscard]] static std::expected<ServedObject, Fault> serve(
        const BusConnection& connection, const char* path, const char* interface, Handler handler);

    /// Any other one, which lives as long as the object.
    [[nodiscard]] static std::expected<ServedObject, Fault> serve(const BusConnection& connection, const char* path,
        _GDBusInterfaceInfo* interface, Handler handler, PropertyReader property);

    ServedObject(ServedObject&& other) noexcept;
    ServedObject& operator=(ServedObject&&) = delete;
    ~ServedObject();

    /// Tells whoever listens. `arguments` is a tuple (null: no arguments).
    void emit(const char* signal, _GVariant* arguments = nullptr) const;

private:
    struct Served;
    ServedObject(_GDBusConnection* connection, std::unique_ptr<Served> served, unsigned identifier);

    ConnectionHandle m_connection;
    std::unique_ptr<Served> m_served; // GDBus knows where it lies
    unsigned m_identifier; // 0: none
};

}
