// Answers two questions of the Quillseal agent: which tab is current, and, after a signature in the
// browser, whether the signing page could be closed and the earlier tab shown again. And it takes
// signing pages, whose addresses bring a text along, out of the history. Nothing about tabs leaves
// the browser but the number of one tab, nothing about the history; no page is read or changed.
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
  // The agent may hear from several profiles: the one that was looked at last counts.
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

// Only the signing page of this identifier: not a page whose address mentions it, and not one whose
// identifier begins with it.
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
    // A relay ends with its agent and is wanted again at once; one that cannot start is not.
    const worked = Date.now() - since > shortestPause;
    pause = worked ? shortestPause : Math.min(2 * pause, longestPause);
    setTimeout(connect, pause);
  });
}

// The page takes its text out of the address at once, but the browser has written that down by then:
// as visited, as what led to the address without the text, and a little later as what has an icon.
extensionApi.history.onVisited.addListener(({ url }) => {
  if (!signingPageAddress.test(url)) return;
  extensionApi.history.deleteUrl({ url });
  setTimeout(() => extensionApi.history.deleteUrl({ url }), untilIconIsNoted);
});

extensionApi.windows.onFocusChanged.addListener((window) => {
  if (window !== extensionApi.windows.WINDOW_ID_NONE) lastFocus = Date.now();
});

// A browser that has put this script to sleep runs it anew for these, and so connects again.
extensionApi.runtime.onStartup.addListener(() => {});
extensionApi.runtime.onInstalled.addListener(() => {});

connect();
