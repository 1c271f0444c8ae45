// SPDX-License-Identifier: GPL-3.0-or-later
// node serve.js DIR [PORT]: serves the site folder on localhost with the
// cross-origin isolation headers the suite's shared memory needs, gzipped
// where the browser takes it. With CARDHAVEN_SERVE_LOG set it prints each
// file sent and its size on the wire.
'use strict';
const fs = require('fs');
const http = require('http');
const path = require('path');
const zlib = require('zlib');

const root = path.resolve(process.argv[2] || '.');
const port = Number(process.argv[3] || 8080);
const TYPES = {'.html': 'text/html; charset=utf-8', '.js': 'text/javascript', '.css': 'text/css',
  '.wasm': 'application/wasm', '.png': 'image/png', '.ogg': 'audio/ogg', '.woff2': 'font/woff2',
  '.webmanifest': 'application/manifest+json', '.json': 'application/json', '.txt': 'text/plain; charset=utf-8'};

http.createServer((req, res) => {
  let file = decodeURIComponent(new URL(req.url, 'http://localhost').pathname);
  if (file.endsWith('/')) file += 'index.html';
  const full = path.join(root, path.normalize(file));
  if (!full.startsWith(root + path.sep)) {
    res.writeHead(403).end();
    return;
  }
  fs.readFile(full, (err, data) => {
    const headers = {'Cross-Origin-Opener-Policy': 'same-origin', 'Cross-Origin-Embedder-Policy': 'require-corp',
      'Cross-Origin-Resource-Policy': 'same-origin', 'Cache-Control': 'no-cache'};
    if (err) {
      res.writeHead(404, headers).end('not found');
      return;
    }
    const type = TYPES[path.extname(full)] || 'application/octet-stream';
    headers['Content-Type'] = type;
    if (/gzip/.test(req.headers['accept-encoding'] || '') && !/png|ogg|woff2/.test(type)) {
      data = zlib.gzipSync(data);
      headers['Content-Encoding'] = 'gzip';
    }
    headers['Content-Length'] = data.length;
    if (process.env.CARDHAVEN_SERVE_LOG) console.log(`sent ${file} ${data.length}`);
    res.writeHead(200, headers);
    res.end(req.method === 'HEAD' ? undefined : data);
  });
}).listen(port, '127.0.0.1', () => {
  console.log(`Card Haven is served on http://localhost:${port}/ (Ctrl+C stops it)`);
});
