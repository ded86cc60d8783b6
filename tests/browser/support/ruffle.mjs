import { copyFile, symlink, writeFile } from 'node:fs/promises';
import path from 'node:path';
import { fileURLToPath } from 'node:url';
import { serve } from './server.mjs';

const emulator = path.dirname(fileURLToPath(import.meta.resolve('@ruffle-rs/ruffle')));

const PAGE = `<!DOCTYPE html>
<meta charset="utf-8">
<style>html, body, ruffle-player { display: block; margin: 0; width: 100%; height: 100%; overflow: hidden }</style>
<body>
<script src="emulator/ruffle.js"></script>
<script>
window.RufflePlayer.config = {
  publicPath: 'emulator/', polyfills: false, autoplay: 'on', unmuteOverlay: 'hidden', letterbox: 'off',
  splashScreen: false, contextMenu: 'off', allowScriptAccess: true, warnOnUnsupportedContent: false,
  preferredRenderer: new URLSearchParams(location.search).get('renderer'), logLevel: 'info',
};
const player = window.RufflePlayer.newest().createPlayer();
document.body.append(player);
player.ruffle().load({ url: 'book.swf' });
window.player = player;
</script>
`;

/** Puts the template's movie and a page that plays it in an emulator into a book's folder. */
export async function addMovie(folder, template) {
  await copyFile(path.join(template, 'book.swf'), path.join(folder, 'book.swf'));
  await writeFile(path.join(folder, 'flash.html'), PAGE);
  await symlink(emulator, path.join(folder, 'emulator'));
}
