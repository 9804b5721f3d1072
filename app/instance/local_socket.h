#pragma once

#include "platform/descriptor.h"

#include <string>
#include <string_view>

namespace quillfern::app {

// Stream sockets between two running programs of one user. They are plain ones, because a second start is over before
// the toolkit has begun, and they never wait on their own.

/// Listens at `path`, in place of whatever is there. No descriptor: errno says why not.
platform::Descriptor listen_at(const std::string& path);

/// No descriptor when nobody listens at `path`, or too many wait there already.
platform::Descriptor connect_to(const std::string& path);

/// No descriptor when nobody waits for a connection, or only somebody who is not this user.
platform::Descriptor accept_from(int listener);

/// Sends what can be sent at once. The number of bytes, or -1 and errno; EPIPE when the other side reads no more.
ssize_t send_some(int socket, std::string_view bytes);

/// What an owner answers to a start that hands its request over.
enum class Answer : char {
    taken = 'T', ///< the request is the owner's now
    done = 'D',
    refused = 'N', ///< not understood
};

/// False when the other side reads no more, and so does not know.
bool send_answer(int socket, Answer answer);

} // namespace quillfern::app
