// Ties a request that is under way to the function that takes its answer. A handle without behaviour: made by
// a tunnel, shared by whoever waits. The function is called on the main thread, once, and then let go.
#pragma once

#include "framework/communication/http/resultset.h"

#include <QObject>
#include <functional>
#include <memory>

namespace Communicator_New
{
class Ticket : public QObject
{
    Q_OBJECT
public:
    /// Success or not, and the answer; without success the tree tells the reason under "error".
    using Callback = std::function<void(bool, std::shared_ptr<ResultSet>)>;

    explicit Ticket(Callback answered = {}) : callback(std::move(answered)) {}

    bool active = true; ///< the answer is delivered only while this is set; main thread
    Callback callback;  ///< main thread
};

using PTicket = std::shared_ptr<Ticket>;
} // namespace Communicator_New
Q_DECLARE_METATYPE(Communicator_New::PTicket)
