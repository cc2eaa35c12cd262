-- For wrk: asks for a page in one language after another, and counts the answers that are none of
-- the lines that a language may show. The environment's KX_ANSWERS has lines
-- "Accept-Language|Content-Language|one answer|another answer".

local counters = {}
local requests = {}
local allowed = {}
local next_request = 0
right, wrong, first_wrong, seen_first, seen_second = 0, 0, "", 0, 0

function setup(thread) table.insert(counters, thread) end

function init()
  for line in os.getenv("KX_ANSWERS"):gmatch("[^\n]+") do
    local asked, language, one, other = line:match("^(.-)|(.-)|(.-)|(.-)$")
    allowed[language] = {one .. "\n", other .. "\n"}
    table.insert(requests, wrk.format("GET", nil, {["Accept-Language"] = asked}))
  end
end

function request()
  next_request = next_request % #requests + 1
  return requests[next_request]
end

function response(status, headers, body)
  local answers = allowed[headers["Content-Language"]]
  if status == 200 and answers ~= nil and body == answers[1] then
    right, seen_first = right + 1, seen_first + 1
  elseif status == 200 and answers ~= nil and body == answers[2] then
    right, seen_second = right + 1, seen_second + 1
  else
    wrong, first_wrong = wrong + 1, status .. " " .. body
  end
end

function done(summary)
  local total = {right = 0, wrong = 0, seen_first = 0, seen_second = 0}
  local example = ""
  for _, thread in ipairs(counters) do
    for name in pairs(total) do total[name] = total[name] + thread:get(name) end
    if thread:get("first_wrong") ~= "" then example = thread:get("first_wrong") end
  end
  local errors = summary.errors
  io.write(string.format("RESULT right=%d wrong=%d first=%d second=%d errors=%d\n", total.right,
    total.wrong, total.seen_first, total.seen_second,
    errors.connect + errors.read + errors.write + errors.status + errors.timeout))
  if example ~= "" then io.write("WRONG " .. example .. "\n") end
end
