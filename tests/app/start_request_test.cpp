#include "app/instance/start_request.h"

#include <gtest/gtest.h>

namespace quillfern::app {
namespace {

const StartRequest everything{.files = {"/home/ana/Pantry.quillfern", "/mnt/\xff\n/Caf\xc3\xa9.quillfern"},
    .sample = true,
    .activationToken = "token_TIME7"};

StartRequest opening(std::size_t count, const std::string& file)
{
    return {std::vector(count, file), false, {}};
}

std::string with_fields(std::string_view fields)
{
    std::string bytes = write_start_request({});
    bytes.resize(bytes.size() - 2);
    bytes[bytes.size() - 4] = static_cast<char>(fields.size());
    return bytes.append(fields);
}

TEST(StartRequest, ArrivesAsItWasSentHoweverItIsCutUp)
{
    for (const StartRequest& request : {StartRequest(), everything}) {
        const std::string bytes = write_start_request(request);
        for (std::size_t length = 0; length < bytes.size(); ++length)
            EXPECT_EQ(
                read_start_request(std::string_view(bytes).substr(0, length)).completeness, Completeness::incomplete);
        const ReadStartRequest read = read_start_request(bytes);
        EXPECT_EQ(read.completeness, Completeness::complete);
        EXPECT_EQ(read.request, request);
    }
}

TEST(StartRequest, IsRefusedWhenItIsNotOne)
{
    using namespace std::string_view_literals;
    const std::string good = write_start_request(everything);
    std::string endless = good;
    endless[good.find('\n') + 3] = '\x7f';
    for (const std::string& bytes : {std::string("GET / HTTP/1.1\r\n"), std::string("quillfern start 2\n"), good + 'x',
             endless, with_fields(""sv), with_fields("token\0"sv), with_fields("\0other\0"sv),
             with_fields("\0\0relative\0"sv), with_fields("\0\0/no end"sv), with_fields("\0\0\0"sv)})
        EXPECT_EQ(read_start_request(bytes).completeness, Completeness::malformed) << bytes;
}

TEST(StartRequest, HasBounds)
{
    EXPECT_FALSE(write_start_request(opening(most_files, "/a")).empty());
    EXPECT_TRUE(write_start_request(opening(most_files + 1, "/a")).empty());
    EXPECT_TRUE(write_start_request(opening(1, '/' + std::string(most_request_bytes, 'a'))).empty());
}

} // namespace
} // namespace quillfern::app
