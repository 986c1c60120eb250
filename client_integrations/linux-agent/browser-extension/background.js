// Answers two requests of the Quillseal agent: which tab is current, and, after a signature in the
// browser, to close the signing page and show the earlier tab again. It also removes signing pages
// from the history, since their URLs contain the text. The browser sends the agent only the number
// of one tab, and nothing from the history. No page is read or changed.
"use strict";

const extensionApi = globalThis.browser ?? globalThis.chrome;
const hostName = "com.quillseal.tabs";
const signingPageMark = /^\/handoff\?h=[A-Za-z0-9._~:=-]{1,256}$/;
const signingPageAddress = /^https?:\/\/[^?#]*\/handoff\?h=[A-Za-z0-9._~:=-]{1,256}(#t=|$)/;
const untilIconIsNoted = 2000;
const shortestPause = 1000;
const longestPause = 300_000;

let pause = shortestPause;
let lastFocus = 0;

async function currentTab() {
  const window = await extensionApi.windows.getLastFocused();
  const [tab] = await extensionApi.tabs.query({ active: true, windowId: window.id });
  // Several profiles may answer; the agent uses the one that was focused last.
  return { tab: tab?.id ?? null, focusedAt: window.focused ? Date.now() : lastFocus };
}

async function show(tab) {
  try {
    const { windowId } = await extensionApi.tabs.update(tab, { active: true });
    const window = await extensionApi.windows.get(windowId);
    const state = window.state === "minimized" ? { state: "normal" } : {};
    await extensionApi.windows.update(windowId, { focused: true, ...state });
    return true;
  } catch {
    return false; // closed meanwhile
  }
}

// Matches only the signing page of this identifier, not a page whose URL mentions it, and not one
// whose identifier begins with it.
function isSigningPage(address, mark) {
  if (!/^https?:/.test(address)) return false;
  const { pathname, search } = new URL(address);
  const [path, query] = mark.split("?");
  return pathname.endsWith(path) && `${search}&`.startsWith(`?${query}&`);
}

async function closeAndRestore({ urlContains: mark, tab }) {
  if (!signingPageMark.test(mark)) return { closed: false, restored: false };
  const isMarked = ({ url, pendingUrl }) =>
    [url, pendingUrl].some((address) => isSigningPage(address, mark));
  const marked = (await extensionApi.tabs.query({})).filter(isMarked);
  await extensionApi.tabs.remove(marked.map(({ id }) => id));
  const restored = tab === null || (await show(tab));
  return { closed: marked.length > 0, restored };
}

async function answerTo(request) {
  return request.operation === "currentTab"
    ? currentTab().catch(() => ({ tab: null, focusedAt: 0 }))
    : closeAndRestore(request).catch(() => ({ closed: false, restored: false }));
}

function connect() {
  const since = Date.now();
  const port = extensionApi.runtime.connectNative(hostName);
  port.onMessage.addListener(async (request) => {
    const { id, operation } = request;
    port.postMessage({ id, operation, ...(await answerTo(request)) });
  });
  port.onDisconnect.addListener(() => {
    void extensionApi.runtime.lastError; // unread, the browser logs it as an error of ours
    // A relay ends with its agent and is started again at once; one that cannot start is not.
    const worked = Date.now() - since > shortestPause;
    pause = worked ? shortestPause : Math.min(2 * pause, longestPause);
    setTimeout(connect, pause);
  });
}

// The page removes the text from its URL at once, but by then the browser has stored that URL: as
// visited, as the referrer of the URL without the text, and a little later with the page's icon.
extensionApi.history.onVisited.addListener(({ url }) => {
  if (!signingPageAddress.test(url)) return;
  extensionApi.history.deleteUrl({ url });
  setTimeout(() => extensionApi.history.deleteUrl({ url }), untilIconIsNoted);
});

extensionApi.windows.onFocusChanged.addListener((window) => {
  if (window !== extensionApi.windows.WINDOW_ID_NONE) lastFocus = Date.now();
});

// These events start a suspended script again, which then connects.
extensionApi.runtime.onStartup.addListener(() => {});
extensionApi.runtime.onInstalled.addListener(() => {});

connect();
