#!/bin/sh
# Root passes every permission check, so a test that expects a refusal would prove nothing: give those powers up.
if [ "$(id -u)" -eq 0 ]; then
    exec setpriv --bounding-set=-dac_override,-dac_read_search -- "$@"
fi
exec "$@"
