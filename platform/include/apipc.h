// The device's message bus, as the closed libraries libapipc2 and libapcard offer it. A task is known by a
// 32-bit identifier with the slot number of its card in the top byte. Any thread, unless stated.
#pragma once

extern "C" {
struct __apsess_st;

/// Called from inside apipc_loop_wait for each message: session, argument given to apipc_loop_wait, message
/// (valid during the call), its length in bytes.
using apipc_callback = int (*)(__apsess_st *session, void *argument, void *message, unsigned int length);

/// Slot number of the card this program runs on; the low 8 bits count.
unsigned int apcard_bit_self();

/// Makes this program known under its task identifier; the second argument is 0. 0 on success. A bus that is
/// not up yet is no failure: it is joined when it comes.
int apipc_init(unsigned int taskIdentifier, int flags);

/// Blocks while it dispatches incoming messages to the callback. Returns when the bus breaks off, to be
/// called again. One thread at a time.
int apipc_loop_wait(void *argument, apipc_callback callback);

/// From the callback: puts the message into this program's queue. The first argument points at the callback's
/// own copy of the message pointer, the others are those of the callback. Negative on failure.
int apipc_enq(void **messageCopy, void *argument, void *message, unsigned int length);

/// Takes the oldest message from the queue. Negative when there is none, after a short wait at most.
int apipc_deq(void **message);
/// The readable bytes of a message that was taken from the queue, null on failure.
void *apipc_que_attach(void *message);
/// Releases a message that was taken from the queue; nothing of it may be used afterwards.
int apipc_que_detach(void *message, void *attached);

/// Sends a whole message, header and payload, to a task. 0 when the bus took it. Never blocks.
int apipc_send(unsigned int taskIdentifier, const void *message, unsigned int length);
} // extern "C"
